#pragma once

#include "FieldEditors/DvSFTextWidget.h"

#include "scenegraph/SoSFFilePathString.h"

class QPushButton;

/** Edits an SoSFFilePathString: one line, and a button that opens the system's file dialog. */
class DvSFFilePathStringWidget final : public DvSFTextWidget<SoSFFilePathString>
{
    Q_OBJECT

public:
    DvSFFilePathStringWidget();

public slots:
    void languageChange() override;
    /** Lets the user choose a file, and commits its path. */
    void openFileDialog();

protected:
    void buildEditor(QHBoxLayout& editLayout) override;

private:
    QPushButton* m_openFileButton = nullptr;
};

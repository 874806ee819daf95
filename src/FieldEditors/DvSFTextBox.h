#pragma once

#include "FieldEditors/DvSFieldWidget.h"

class DvLineEdit;

/** One line of plain text, as the field holds it: no quotes, no escapes. */
class DvSFTextBox : public DvSFieldWidget
{
    Q_OBJECT

public:
    explicit DvSFTextBox(const QString& objectName);

    bool hasPendingEdit() const override;

protected:
    void buildEditor(QHBoxLayout& editLayout) override;
    void clearPendingEdit() override;

    DvLineEdit& line() const { return *m_line; }
    void showText(const SbString& text);
    /** Whether the line holds another text than the one that refresh() showed, and may. */
    bool hasNewText() const;
    SbString text() const;

private:
    DvLineEdit* m_line = nullptr;
};

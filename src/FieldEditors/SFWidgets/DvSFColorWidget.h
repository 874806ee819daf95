#pragma once

#include "FieldEditors/DvSFLinesWidget.h"
#include "FieldEditors/DvSFNumbersWidget.h"
#include "FieldEditors/DvValueViews.h"

class QPushButton;

/** Edits an SoSFColor: three lines, and a swatch that opens the system's colour dialog. */
class DvSFColorWidget final : public DvSFNumbersWidget<DvSFLinesWidget, DvColorView>
{
    Q_OBJECT

public:
    DvSFColorWidget();

    void refresh() override;

public slots:
    void languageChange() override;
    // While a line is being typed into, the swatch shows what it says; nothing is committed.
    void changeRValue(const QString& text);
    void changeGValue(const QString& text);
    void changeBValue(const QString& text);
    /** Lets the user choose a colour, and commits it. */
    void getColorEditor();

protected:
    void buildEditor(QHBoxLayout& editLayout) override;
    void fieldReleased() override;

private:
    void changeComponent(std::size_t index, const QString& text);
    void paintSwatch();

    QPushButton* m_colorDisp = nullptr;
    DvColorView::Numbers m_color = {}; ///< what the lines say now
};

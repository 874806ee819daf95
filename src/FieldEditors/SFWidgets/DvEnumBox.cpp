#include "FieldEditors/SFWidgets/DvEnumBox.h"

#include <QStylePainter>

void DvEnumBox::paintEvent(QPaintEvent* event)
{
    if (currentIndex() >= 0) {
        QComboBox::paintEvent(event);
        return;
    }
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = placeholderText();
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    // Some styles draw the text as a button's, others as a line's.
    QColor grey = palette().color(QPalette::Text);
    grey.setAlpha(128);
    option.palette.setColor(QPalette::ButtonText, grey);
    option.palette.setColor(QPalette::Text, grey);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

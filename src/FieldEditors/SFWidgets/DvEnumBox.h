#pragma once

#include <QComboBox>

/** A combo box that shows its placeholder text, greyed, while nothing is chosen; Qt 5.15 draws
 *  nothing there. */
class DvEnumBox final : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

protected:
    void paintEvent(QPaintEvent* event) override;
};

#include "FieldEditors/SFWidgets/DvSFColorWidget.h"

#include "FieldEditors/DvFieldText.h"
#include "FieldEditors/DvLayoutConstants.h"
#include "FieldEditors/DvLineEdit.h"

#include <QColorDialog>
#include <QHBoxLayout>
#include <QPushButton>

#include <algorithm>
#include <cmath>

namespace {

const DvLinesForm s_form = {
    nullptr,
    "SFColorLayout",
    "SFColorLabel",
    "SFColorLine",
    "SFColorInterSpacing",
    "SFColorInterSpacing",
    "SFColorMargin",
    {"<p align=\"right\">R</p>", "<p align=\"right\">G</p>", "<p align=\"right\">B</p>"}};

const char* const s_changeSlots[] = {SLOT(changeRValue(QString)), SLOT(changeGValue(QString)),
                                     SLOT(changeBValue(QString))};

/** Multiplied by 255 and cut to an integer; a component may lie outside of 0 to 1, or be none. */
int channel(double component)
{
    if (std::isnan(component))
        return 0;
    return static_cast<int>(static_cast<float>(std::clamp(component, 0.0, 1.0)) * 255.0F);
}

QColor toQColor(const DvColorView::Numbers& color)
{
    return {channel(color[0]), channel(color[1]), channel(color[2]), 255};
}

} // namespace

DvSFColorWidget::DvSFColorWidget() : DvSFNumbersWidget(QStringLiteral("DvSFColorWidget"), s_form) {}

void DvSFColorWidget::buildEditor(QHBoxLayout& editLayout)
{
    editLayout.setSpacing(DvLayoutConstants::value("SFColorSpacing"));
    DvSFLinesWidget::buildEditor(editLayout);
    m_colorDisp = new QPushButton(frame());
    m_colorDisp->setObjectName(QStringLiteral("m_colorDisp"));
    const QSize size(DvLayoutConstants::value("SFColorDispWidth"),
                     DvLayoutConstants::value("SFComponentHeight"));
    m_colorDisp->setFixedSize(size);
    m_colorDisp->setIconSize(size);
    m_colorDisp->setFlat(true);
    editLayout.addWidget(m_colorDisp);
    connect(m_colorDisp, SIGNAL(clicked()), this, SLOT(getColorEditor()));
    for (std::size_t i = 0; i < m_color.size(); ++i)
        connect(&line(i), SIGNAL(textChanged(QString)), this, s_changeSlots[i]);
}

void DvSFColorWidget::languageChange()
{
    DvSFLinesWidget::languageChange();
    if (!m_colorDisp)
        return;
    m_colorDisp->setToolTip(tr("Choose a colour"));
    m_colorDisp->setAccessibleName(m_colorDisp->toolTip());
}

void DvSFColorWidget::refresh()
{
    DvSFNumbersWidget::refresh();
    const auto* const color = fieldAs<SoSFColor>();
    if (!color)
        return;
    // The lines' rounded texts could lie below the channel that the field's components stand for.
    const DvColorView::Numbers components = DvColorView::numbers(color->getValue());
    for (std::size_t i = 0; i < m_color.size(); ++i)
        m_color[i] = number(i, components[i]);
    paintSwatch();
}

void DvSFColorWidget::changeRValue(const QString& text)
{
    changeComponent(0, text);
}

void DvSFColorWidget::changeGValue(const QString& text)
{
    changeComponent(1, text);
}

void DvSFColorWidget::changeBValue(const QString& text)
{
    changeComponent(2, text);
}

void DvSFColorWidget::changeComponent(std::size_t index, const QString& text)
{
    m_color[index] = static_cast<double>(DvFieldText::toFloat(text));
    paintSwatch();
}

void DvSFColorWidget::paintSwatch()
{
    const qreal scale = m_colorDisp->devicePixelRatioF();
    QPixmap swatch(m_colorDisp->iconSize() * scale);
    swatch.setDevicePixelRatio(scale);
    swatch.fill(toQColor(m_color));
    m_colorDisp->setIcon(swatch);
}

/** Disabled with the frame, the dialog of a field that is no more would only hold the user up. */
void DvSFColorWidget::fieldReleased()
{
    DvSFNumbersWidget::fieldReleased();
    const QWidget* const parent = isFieldDying() ? frame() : nullptr;
    if (auto* const dialog = parent ? parent->findChild<QColorDialog*>() : nullptr)
        dialog->reject();
}

void DvSFColorWidget::getColorEditor()
{
    const unsigned edited = fieldNumber();
    const QColor chosen = QColorDialog::getColor(toQColor(m_color), frame());
    // While the dialog was open, another field may have been selected, or this one may have died.
    if (!chosen.isValid() || !field() || edited != fieldNumber())
        return;
    const int channels[] = {chosen.red(), chosen.green(), chosen.blue()};
    for (std::size_t i = 0; i < m_color.size(); ++i)
        enterNumber(i, channels[i] / 255.0);
    setCommandValue();
    refresh();
}

#include "benchmarks/support/BareTwin.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleValidator>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>

#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void giveUp(const QObject& object)
{
    std::fprintf(stderr, "no twin is known for a %s\n", object.metaObject()->className());
    std::exit(EXIT_FAILURE);
}

void copyLook(const QWidget& original, QWidget& twin)
{
    twin.setMinimumSize(original.minimumSize());
    twin.setMaximumSize(original.maximumSize());
    twin.setSizePolicy(original.sizePolicy());
    twin.setFocusPolicy(original.focusPolicy());
    if (original.testAttribute(Qt::WA_SetFont))
        twin.setFont(original.font());
}

void copyFrame(const QFrame& original, QFrame& twin)
{
    twin.setFrameStyle(original.frameStyle());
    twin.setLineWidth(original.lineWidth());
}

QLabel* newLabel(const QLabel& original)
{
    auto* const label = new QLabel(original.text());
    if (!original.pixmap(Qt::ReturnByValue).isNull())
        label->setPixmap(original.pixmap(Qt::ReturnByValue));
    label->setAlignment(original.alignment());
    copyFrame(original, *label);
    label->setScaledContents(original.hasScaledContents());
    return label;
}

QPushButton* newButton(const QPushButton& original)
{
    auto* const button = new QPushButton(original.icon(), original.text());
    button->setCheckable(original.isCheckable());
    button->setToolTip(original.toolTip());
    return button;
}

QLineEdit* newLine(const QLineEdit& original)
{
    auto* const line = new QLineEdit;
    if (original.validator())
        line->setValidator(new QDoubleValidator(line));
    return line;
}

QSlider* newSlider(const QSlider& original)
{
    auto* const slider = new QSlider(original.orientation());
    slider->setRange(original.minimum(), original.maximum());
    return slider;
}

QComboBox* newCombo(const QComboBox& original)
{
    auto* const combo = new QComboBox;
    for (int item = 0; item < original.count(); ++item)
        combo->addItem(original.itemText(item));
    return combo;
}

QSpinBox* newSpin(const QSpinBox& original)
{
    auto* const spin = new QSpinBox;
    spin->setRange(original.minimum(), original.maximum());
    return spin;
}

QFrame* newFrame(const QFrame& original)
{
    auto* const frame = new QFrame;
    copyFrame(original, *frame);
    return frame;
}

QLayout* newLayout(const QLayout& original)
{
    if (qobject_cast<const QGridLayout*>(&original))
        return new QGridLayout;
    if (const auto* box = qobject_cast<const QBoxLayout*>(&original))
        return new QBoxLayout(box->direction());
    giveUp(original);
}

void copySpacing(const QLayout& original, QLayout& twin)
{
    twin.setContentsMargins(original.contentsMargins());
    twin.setSizeConstraint(original.sizeConstraint());
    const auto* grid = qobject_cast<const QGridLayout*>(&original);
    if (!grid) {
        twin.setSpacing(original.spacing());
        return;
    }
    auto& twinGrid = static_cast<QGridLayout&>(twin);
    twinGrid.setHorizontalSpacing(grid->horizontalSpacing());
    twinGrid.setVerticalSpacing(grid->verticalSpacing());
    for (int column = 0; column < grid->columnCount(); ++column)
        twinGrid.setColumnStretch(column, grid->columnStretch(column));
}

/** Where an item stands in a grid. */
struct Place
{
    Place(const QGridLayout& grid, int index)
    {
        const_cast<QGridLayout&>(grid).getItemPosition(index, &row, &column, &rows, &columns);
    }

    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
};

void addWidget(const QLayout& original, int index, QLayout& twin, QWidget* widget)
{
    if (const auto* grid = qobject_cast<const QGridLayout*>(&original)) {
        const Place place(*grid, index);
        static_cast<QGridLayout&>(twin).addWidget(widget, place.row, place.column, place.rows,
                                                  place.columns);
        return;
    }
    const int stretch = static_cast<const QBoxLayout&>(original).stretch(index);
    static_cast<QBoxLayout&>(twin).addWidget(widget, stretch);
}

void addLayout(const QLayout& original, int index, QLayout& twin, QLayout* layout)
{
    if (const auto* grid = qobject_cast<const QGridLayout*>(&original)) {
        const Place place(*grid, index);
        static_cast<QGridLayout&>(twin).addLayout(layout, place.row, place.column, place.rows,
                                                  place.columns);
        return;
    }
    const int stretch = static_cast<const QBoxLayout&>(original).stretch(index);
    static_cast<QBoxLayout&>(twin).addLayout(layout, stretch);
}

} // namespace

BareTwin::BareTwin(const QWidget& original) : m_widget(copyWidget(original)) {}

BareTwin::~BareTwin() = default;

void BareTwin::showValues() const
{
    for (const auto& show : m_show)
        show();
}

void BareTwin::clearValues() const
{
    for (const auto& clear : m_clear)
        clear();
}

template <class Twin, class Value>
void BareTwin::copyValue(Twin* twin, void (Twin::*set)(Value), const std::decay_t<Value>& value)
{
    m_show.push_back([twin, set, value] { (twin->*set)(value); });
    m_clear.push_back([twin, set] { (twin->*set)({}); });
}

/** What has a value among several; null for anything else. */
QWidget* BareTwin::newChooser(const QWidget& original)
{
    if (const auto* slider = qobject_cast<const QSlider*>(&original)) {
        QSlider* const twin = newSlider(*slider);
        copyValue(static_cast<QAbstractSlider*>(twin), &QAbstractSlider::setValue, slider->value());
        return twin;
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(&original)) {
        QComboBox* const twin = newCombo(*combo);
        copyValue(twin, &QComboBox::setCurrentIndex, combo->currentIndex());
        return twin;
    }
    if (const auto* spin = qobject_cast<const QSpinBox*>(&original)) {
        QSpinBox* const twin = newSpin(*spin);
        copyValue(twin, &QSpinBox::setValue, spin->value());
        return twin;
    }
    return nullptr;
}

QWidget* BareTwin::newWidget(const QWidget& original)
{
    if (const auto* label = qobject_cast<const QLabel*>(&original))
        return newLabel(*label);
    if (QWidget* const chooser = newChooser(original))
        return chooser;
    if (const auto* button = qobject_cast<const QPushButton*>(&original))
        return newButton(*button);
    if (const auto* line = qobject_cast<const QLineEdit*>(&original)) {
        QLineEdit* const twin = newLine(*line);
        copyValue(twin, &QLineEdit::setText, line->text());
        return twin;
    }
    if (const auto* box = qobject_cast<const QCheckBox*>(&original)) {
        auto* const twin = new QCheckBox(box->text());
        copyValue(static_cast<QAbstractButton*>(twin), &QAbstractButton::setChecked,
                  box->isChecked());
        return twin;
    }
    if (const auto* frame = qobject_cast<const QFrame*>(&original))
        return newFrame(*frame);
    if (original.metaObject() == &QWidget::staticMetaObject)
        return new QWidget;
    giveUp(original);
}

QWidget* BareTwin::copyWidget(const QWidget& original)
{
    QWidget* const twin = newWidget(original);
    copyLook(original, *twin);
    if (original.layout())
        twin->setLayout(copyLayout(*original.layout()));
    else if (!original.findChildren<QFrame*>(QString(), Qt::FindDirectChildrenOnly).isEmpty())
        giveUp(original);
    return twin;
}

QLayout* BareTwin::copyLayout(const QLayout& original)
{
    QLayout* const twin = newLayout(original);
    copySpacing(original, *twin);
    for (int index = 0; index < original.count(); ++index) {
        QLayoutItem* const item = original.itemAt(index);
        if (item->widget())
            addWidget(original, index, *twin, copyWidget(*item->widget()));
        else if (item->layout())
            addLayout(original, index, *twin, copyLayout(*item->layout()));
        else
            twin->addItem(new QSpacerItem(*item->spacerItem()));
    }
    return twin;
}

#include "FieldEditors/DvSlider.h"

#include "FieldEditors/DvIntSlider.h"
#include "FieldEditors/DvLineEdit.h"
#include "FieldEditors/DvRealSlider.h"
#include "FieldEditors/DvSliderOwner.h"
#include "FieldEditors/DvUIntSlider.h"
#include "FieldEditors/DvWheelGuard.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QSlider>

#include <new>

DvSlider* DvSlider::create(int kind, int cellMode, DvSliderOwner& owner, QWidget* parent,
                           int cellRow, int cellColumn)
{
    switch (kind) {
    case FloatKind:
    case DoubleKind:
        return new (std::nothrow) DvRealSlider(kind, cellMode, owner, parent, cellRow, cellColumn);
    case Int32Kind:
    case ShortKind:
        return new (std::nothrow) DvIntSlider(kind, cellMode, owner, parent, cellRow, cellColumn);
    case UInt32Kind:
    case UShortKind:
        return new (std::nothrow) DvUIntSlider(kind, cellMode, owner, parent, cellRow, cellColumn);
    default:
        return nullptr;
    }
}

DvSlider::DvSlider(int cellMode, DvSliderOwner& owner, QWidget* parent, int cellRow, int cellColumn)
    : QFrame(parent), m_cellMode(cellMode), m_owner(owner), m_cellRow(cellRow),
      m_cellColumn(cellColumn)
{
    setObjectName(QStringLiteral("DvSliderFrame"));
    buildControls();
    connectControls();
    m_acceptSliderSignals = true;
}

DvSlider::~DvSlider() = default;

void DvSlider::buildControls()
{
    auto* const outer = new QHBoxLayout(this);
    outer->setContentsMargins(2, 2, 2, 2);
    auto* const inner = new QHBoxLayout;
    inner->setContentsMargins(0, 0, 0, 0);
    inner->setSpacing(3);
    inner->setObjectName(QStringLiteral("tavrikslider"));
    outer->addLayout(inner);

    // Made in reading order, which the Tab key follows.
    m_liveBox = new QCheckBox(this);
    m_liveBox->setToolTip(tr("Change the field while dragging"));
    m_liveBox->setAccessibleName(m_liveBox->toolTip());
    m_slider = new QSlider(Qt::Horizontal, this);
    m_slider->setTracking(true);
    m_slider->setAccessibleName(tr("Value in its range"));
    m_slider->setFocusPolicy(Qt::StrongFocus);
    DvWheelGuard::install(*m_slider);
    m_lineEdit = new DvLineEdit("lineEdit", this);
    m_lineEdit->setAccessibleName(tr("Value"));
    inner->addWidget(m_liveBox);
    inner->addWidget(m_slider, 1);
    inner->addWidget(m_lineEdit, 1);
}

void DvSlider::connectControls()
{
    connect(m_slider, SIGNAL(sliderPressed()), this, SLOT(beginCallback()));
    connect(m_slider, SIGNAL(valueChanged(int)), this, SLOT(valueChangeSlot(int)));
    connect(m_slider, SIGNAL(sliderReleased()), this, SLOT(finishCallback()));
    m_liveBox->setChecked(m_liveNotify);
    connect(m_lineEdit, SIGNAL(returnPressed()), this, SLOT(changeValueFromEdit()));
    connect(m_lineEdit, SIGNAL(editingFinished()), this, SLOT(changeValueFromEdit()));
    connect(m_lineEdit, SIGNAL(revertRequested()), this, SLOT(revertFromLine()));
    connect(m_liveBox, SIGNAL(toggled(bool)), this, SLOT(eventNotify(bool)));
}

void DvSlider::keyPressEvent(QKeyEvent* event)
{
    // The keys that add and delete rows are the table's, which gets what its cells leave.
    if (m_cellMode)
        event->accept();
    else
        QFrame::keyPressEvent(event);
}

void DvSlider::onTextEntered(const QString&) {}

void DvSlider::showText(const QString& text)
{
    m_lineEdit->showText(text);
}

void DvSlider::moveToPosition()
{
    const QScopedValueRollback<bool> silence(m_acceptSliderSignals, false);
    m_slider->setValue(m_position);
    // A value outside of a strict range has the thumb at the end of it.
    m_position = m_slider->value();
}

void DvSlider::setSliderRange(int minimum, int maximum)
{
    // A range that moves the thumb makes the slider report a change.
    const QScopedValueRollback<bool> silence(m_acceptSliderSignals, false);
    m_slider->setRange(minimum, maximum);
}

bool DvSlider::hasPendingEdit() const
{
    return m_lineEdit->isModified();
}

void DvSlider::takePendingEdit()
{
    if (!hasPendingEdit())
        return;
    onTextEntered(m_lineEdit->text());
    updateValueFromText();
    m_lineEdit->setModified(false);
    updateText();
    moveToPosition();
}

void DvSlider::showCellText(const QString& text)
{
    showText(text);
    onTextEntered(text);
    updateValueFromText();
    m_lineEdit->setModified(false);
    updateText();
    moveToPosition();
}

void DvSlider::revertPendingEdit()
{
    m_lineEdit->setModified(false);
    updateText();
}

void DvSlider::revertFromLine()
{
    revertPendingEdit();
    m_owner.revertSlider();
}

void DvSlider::cancelDrag()
{
    const QSignalBlocker blocker(m_slider);
    // The slider follows the mouse until it has seen a release, down or not.
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(), Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    static_cast<QObject*>(m_slider)->event(&release);
    m_slider->setSliderDown(false);
    m_inSliderCallback = false;
    m_oldValueText.makeEmpty();
}

void DvSlider::commit()
{
    if (m_cellMode)
        m_owner.commitSliderCell(m_cellRow, m_cellColumn);
    else
        m_owner.commitSlider();
    // An owner that has no field has not taken it over; the next command would restore it.
    m_oldValueText.makeEmpty();
}

void DvSlider::changeValueFromEdit()
{
    if (!hasPendingEdit())
        return;
    takePendingEdit();
    commit();
}

void DvSlider::eventNotify(bool state)
{
    m_liveNotify = state;
}

void DvSlider::beginCallback()
{
    m_inSliderCallback = true;
    storeOldValue();
}

void DvSlider::valueChangeSlot(int newValue)
{
    if (!m_acceptSliderSignals)
        return;
    m_inSliderCallback = true;
    updateValueFromPosition(newValue);
    updateText();
    // Kept on purpose: while steps do not commit, a key or the wheel does not either, having no
    // release.
    if (m_liveNotify)
        commit();
    m_inSliderCallback = false;
}

void DvSlider::finishCallback()
{
    m_inSliderCallback = false;
    // A thumb that was pressed and not moved stands for the exact value still.
    if (m_slider->value() != m_position) {
        updateValueFromPosition(m_slider->value());
        updateText();
    }
    // Kept on purpose: the release commits once more, also after steps that have committed.
    commit();
}

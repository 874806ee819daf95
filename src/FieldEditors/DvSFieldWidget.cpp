#include "FieldEditors/DvSFieldWidget.h"

#include "FieldEditors/DvButtonIcons.h"
#include "FieldEditors/DvCommands.h"
#include "FieldEditors/DvDefaultValue.h"
#include "FieldEditors/DvEditorParts.h"
#include "FieldEditors/DvLayoutConstants.h"
#include "FieldEditors/TvkFieldIgnoredCommand.h"
#include "FieldEditors/TvkSFSetValueCommand.h"

#include <Inventor/fields/SoSField.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace {

int constant(const char* name)
{
    return DvLayoutConstants::value(name);
}

} // namespace

DvSFieldWidget::DvSFieldWidget(int sliderKind, const QString& objectName)
    : m_slider(DvSlider::create(sliderKind, 0, *this, frame(), 0, 1))
{
    // Any single-value field, unless a type says otherwise.
    m_handledType = SoSField::getClassTypeId();
    setObjectName(objectName);
    m_name = objectName.toUtf8().constData();
    frame()->setObjectName(objectName);
}

DvSFieldWidget::~DvSFieldWidget()
{
    // While the slots of this class can still be called.
    deleteFrame();
}

void DvSFieldWidget::createWidgets()
{
    TvkFieldEditors::createWidgets();
    if (!frame() || frame()->layout())
        return;
    frame()->setFrameShape(QFrame::StyledPanel);
    frame()->setFrameShadow(QFrame::Plain);
    frame()->setLineWidth(constant("frameLineWidth"));
    QHBoxLayout* const layout =
        DvEditorParts::newRow("SFieldLayout", "SFieldLayoutMargin", "SFieldLayoutSpacing");
    frame()->setLayout(layout);
    buildLabel(*layout);
    buildEditionArea(*layout);
    buildButtons(*layout);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
    languageChange();
    connect(frame(), SIGNAL(languageChanged()), this, SLOT(languageChange()));
}

QLabel* DvSFieldWidget::label()
{
    if (!m_label)
        m_label = new QLabel(frame());
    return m_label;
}

void DvSFieldWidget::buildLabel(QBoxLayout& layout)
{
    DvEditorParts::dressLabel(*label(), getHandledType().getName().getString());
    layout.addWidget(label());
    layout.addSpacerItem(new QSpacerItem(0, 0, QSizePolicy::Minimum));
}

void DvSFieldWidget::buildEditionArea(QBoxLayout& layout)
{
    QHBoxLayout* const area = DvEditorParts::newRow(
        "SFieldEditionAreaLayout", "SFEditionAreaLayMargin", "SFEditionAreaLaySpacing");
    auto* const editionFrame = new QFrame(frame());
    editionFrame->setObjectName(QStringLiteral("m_editionFrame"));
    editionFrame->setFrameShape(QFrame::Box);
    editionFrame->setFrameShadow(QFrame::Plain);
    editionFrame->setLineWidth(constant("frameLineWidth"));
    QHBoxLayout* const editLayout =
        DvEditorParts::newRow("editLayout", "SFieldEditLayoutMargin", "SFieldEditLayoutSpacing");
    editionFrame->setLayout(editLayout);
    buildEditor(*editLayout);
    area->addWidget(editionFrame);
    layout.addLayout(area, 1);
}

void DvSFieldWidget::buildButtons(QBoxLayout& layout)
{
    // Kept on purpose: this layout has the same object name as the one that it stands in.
    QHBoxLayout* const buttons =
        DvEditorParts::newRow("SFieldLayout", "SFButtonLayoutMargin", "SFButtonLayoutSpacing");
    m_defaultButton =
        DvEditorParts::newButton("m_defaultButton", DvButtonIcons::setToDefault(), frame());
    m_ignoreButton = DvEditorParts::newButton("m_ignoreButton", DvButtonIcons::ignore(), frame());
    m_ignoreButton->setCheckable(true);
    buttons->addWidget(m_defaultButton);
    buttons->addWidget(m_ignoreButton);
    layout.addLayout(buttons);
    connect(m_defaultButton, SIGNAL(clicked()), this, SLOT(setDefaultFieldValue()));
    connect(m_ignoreButton, SIGNAL(released()), this, SLOT(ignoreButtonStateChanged()));
}

void DvSFieldWidget::languageChange()
{
    if (!m_defaultButton)
        return;
    m_defaultButton->setText(QString());
    m_ignoreButton->setText(QString());
    m_defaultButton->setToolTip(tr("Set to default"));
    m_ignoreButton->setToolTip(tr("Ignore this field"));
    m_defaultButton->setAccessibleName(m_defaultButton->toolTip());
    m_ignoreButton->setAccessibleName(m_ignoreButton->toolTip());
}

void DvSFieldWidget::setField(SoField* field)
{
    if (!frame()) {
        // Whoever held the frame has deleted it, and the type's widgets with it.
        m_field = nullptr;
        return;
    }
    if (m_field)
        releaseField();
    m_field = field;
    ++m_fieldNumber;
    TvkFieldEditors::setField(field);
    if (m_field)
        fieldReplaced();
}

void DvSFieldWidget::releaseField()
{
    if (!isFieldDying())
        finishTyping();
    // What the field has refused, or can take no more, is not the next field's.
    clearPendingEdit();
    fieldReleased();
}

void DvSFieldWidget::finishTyping()
{
    if (isHalfTyped())
        revertPendingEdit();
    else
        setFocusLeaveEvent();
}

bool DvSFieldWidget::isHalfTyped() const
{
    const QList<QLineEdit*> lines = frame()->findChildren<QLineEdit*>();
    return std::any_of(lines.begin(), lines.end(), [](const QLineEdit* line) {
        return line->isModified() && !line->hasAcceptableInput();
    });
}

void DvSFieldWidget::refresh()
{
    if (!m_field || !m_ignoreButton)
        return;
    m_ignoreButton->setChecked(m_field->isIgnored());
}

void DvSFieldWidget::pushSetValue()
{
    // A copy: the slider's own text stays for its next commit.
    SbString previousText;
    if (m_slider)
        previousText = m_slider->oldValueText();
    pushSetValue(previousText);
}

void DvSFieldWidget::pushSetValue(SbString& previousText)
{
    DvCommands::push<TvkSFSetValueCommand>(m_field, previousText);
}

void DvSFieldWidget::commitSlider()
{
    applyChanges();
}

void DvSFieldWidget::revertSlider()
{
    revertPendingEdit();
}

void DvSFieldWidget::commitSliderCell(int, int)
{
    // A single-value editor has no cells.
}

void DvSFieldWidget::setCommandValue()
{
    applyChanges();
}

void DvSFieldWidget::setFocusLeaveEvent()
{
    if (hasPendingEdit())
        applyChanges();
}

void DvSFieldWidget::revertPendingEdit()
{
    clearPendingEdit();
    refresh();
}

void DvSFieldWidget::ignoreButtonStateChanged()
{
    if (!m_field)
        return;
    const bool checked = m_ignoreButton->isChecked();
    // A press that is dragged off the button is released too, without a toggle: an entry for it
    // would turn the flag round when undone.
    if (m_field->isIgnored() == static_cast<SbBool>(checked))
        return;
    m_field->setIgnored(checked);
    DvCommands::push<TvkFieldIgnoredCommand>(m_field, checked);
}

void DvSFieldWidget::setDefaultFieldValue()
{
    if (!m_field)
        return;
    clearPendingEdit();
    DvDefaultValue::restore(*m_field);
}

// What a type without a need of its own leaves as it is.
void DvSFieldWidget::buildEditor(QHBoxLayout&) {}
void DvSFieldWidget::fieldReplaced() {}
void DvSFieldWidget::fieldReleased() {}
void DvSFieldWidget::applyChanges(const QString&) {}
void DvSFieldWidget::clearPendingEdit() {}
void DvSFieldWidget::applyChanges() {}

bool DvSFieldWidget::hasPendingEdit() const
{
    return false;
}

#include "FieldEditors/DvMFieldWidget.h"

#include "FieldEditors/AccessButtonPrivate.h"
#include "FieldEditors/DvButtonIcons.h"
#include "FieldEditors/DvCommands.h"
#include "FieldEditors/DvDefaultValue.h"
#include "FieldEditors/DvEditorParts.h"
#include "FieldEditors/DvFieldMaster.h"
#include "FieldEditors/DvLayoutConstants.h"
#include "FieldEditors/DvMFieldTable.h"
#include "FieldEditors/DvSlider.h"
#include "FieldEditors/TvkFieldIgnoredCommand.h"
#include "FieldEditors/TvkMFSetValueCommand.h"
#include "scenegraph/SoFieldText.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/** In a narrow table an equal share of the width would be too little for a word. */
void fitToLabel(QHeaderView& header, int column)
{
    header.setSectionResizeMode(column, QHeaderView::Fixed);
    header.resizeSection(column, header.sectionSizeHint(column));
}

/** Room between the buttons, by the names of its two constants. */
QSpacerItem* newSpacer(const char* width, const char* height, QSizePolicy::Policy horizontal)
{
    return new QSpacerItem(DvLayoutConstants::value(width), DvLayoutConstants::value(height),
                           horizontal, QSizePolicy::Minimum);
}

} // namespace

DvMFieldWidget::DvMFieldWidget(DvTableForm form, const QString& objectName)
    : m_form(std::move(form))
{
    setObjectName(objectName);
    m_name = objectName.toUtf8().constData();
    frame()->setObjectName(objectName);
}

DvMFieldWidget::~DvMFieldWidget()
{
    // An open cell would be committed into an editor that is half gone.
    if (hasTable())
        m_table->delegate().discardOpenEditor();
    // While the slots of this class can still be called.
    deleteFrame();
}

QLabel* DvMFieldWidget::label()
{
    if (!m_label)
        m_label = new QLabel(frame());
    return m_label;
}

void DvMFieldWidget::createWidgets()
{
    TvkFieldEditors::createWidgets();
    if (!frame() || frame()->layout())
        return;
    buildFrame();
    buildTable();
    connectTable();
    languageChange();
    connect(frame(), SIGNAL(languageChanged()), this, SLOT(languageChange()));
    connect(frame(), SIGNAL(entered()), this, SLOT(s_showWhetherEditable()));
}

void DvMFieldWidget::buildFrame()
{
    frame()->setFrameShape(QFrame::StyledPanel);
    frame()->setFrameShadow(QFrame::Plain);
    frame()->setLineWidth(DvLayoutConstants::value("frameLineWidth"));
    QVBoxLayout* const global = DvEditorParts::newColumn("m_globalLayout", "MFGlobalLayoutMarging",
                                                         "MFGlobalLayoutSpacing");
    frame()->setLayout(global);
    QHBoxLayout* const buttons = DvEditorParts::newRow(
        "m_buttonsLayout", "MFGlobalButtonsLayoutMargin", "MFGlobalButtonsLayoutSpacing");
    global->addLayout(buttons);
    DvEditorParts::dressLabel(*label(), m_form.typeName);
    buttons->addWidget(label());
    buttons->addStretch();
    m_accessBox = new AccessButtonPrivate(frame(), "m_accessBox");
    m_accessBox->setMinimumWidth(DvLayoutConstants::value("MFAccessWidth"));
    m_labelNumElement = new QLabel(frame());
    m_labelNumElement->setObjectName(QStringLiteral("m_labelNumElement"));
    // The row has no spacing, and the text would touch the spin box.
    m_labelNumElement->setIndent(m_labelNumElement->fontMetrics().horizontalAdvance(u' '));
    m_table = newTable();
#ifdef Q_OS_WIN
    m_table->setMinimumHeight(DvLayoutConstants::value("MFTableMinHeightWin"));
#else
    m_table->setMinimumHeight(DvLayoutConstants::value("MFTableMinHeightUnix"));
#endif
    global->addWidget(m_table, 1);
    buildButtons();
}

void DvMFieldWidget::buildButtons()
{
    auto* const buttons = frame()->findChild<QHBoxLayout*>(QStringLiteral("m_buttonsLayout"));
    m_defaultButton =
        DvEditorParts::newButton("m_defaultButton", DvButtonIcons::setToDefault(), frame());
    m_ignoreButton = DvEditorParts::newButton("m_ignoreButton", DvButtonIcons::ignore(), frame());
    m_ignoreButton->setCheckable(true);
    buttons->addWidget(m_defaultButton);
    buttons->addWidget(m_ignoreButton);

    m_manageButtonsLayout = DvEditorParts::newRow("m_manageButtonsLayout", "MFButtonLayoutMargin",
                                                  "MFButtonLayoutSpacing");
    static_cast<QBoxLayout*>(frame()->layout())->addLayout(m_manageButtonsLayout);
    m_addButton = DvEditorParts::newButton("m_addButton", DvButtonIcons::addRow(), frame());
    m_deleteButton =
        DvEditorParts::newButton("m_deleteButton", DvButtonIcons::deleteRow(), frame());
    m_upButton = DvEditorParts::newButton("m_upButton", DvButtonIcons::rowUp(), frame());
    m_downButton = DvEditorParts::newButton("m_downButton", DvButtonIcons::rowDown(), frame());
    m_manageButtonsLayout->addWidget(m_addButton);
    m_manageButtonsLayout->addWidget(m_deleteButton);
    m_manageButtonsLayout->addItem(
        newSpacer("MFManageAccessSpacerWidth", "MFManageAccessSpacerHeight", QSizePolicy::Fixed));
    m_manageButtonsLayout->addWidget(m_accessBox);
    m_manageButtonsLayout->addWidget(m_labelNumElement);
    m_manageButtonsLayout->addItem(
        newSpacer("MFAccessMoveSpacerWidth", "MFAccessMoveSpacerHeight", QSizePolicy::Expanding));
    QHBoxLayout* const movement = DvEditorParts::newRow(
        "movementButtonLayout", "MFButtonLayoutMargin", "MFButtonLayoutSpacing");
    movement->addWidget(m_upButton);
    movement->addWidget(m_downButton);
    m_manageButtonsLayout->addLayout(movement);
}

DvMFieldTable* DvMFieldWidget::newTable()
{
    return new DvMFieldTable(*this, frame(), "m_table");
}

void DvMFieldWidget::buildTable()
{
    m_table->setColumnCount(static_cast<int>(m_form.headers.size()));
    QStringList labels;
    for (const char* header : m_form.headers)
        labels << QLatin1String(header);
    m_table->setHorizontalHeaderLabels(labels);
    for (int column = 1; column < labels.size(); ++column) {
        if (labels[column].size() > 1)
            fitToLabel(*m_table->horizontalHeader(), column);
    }
    m_table->delegate().setValueKind(m_form.valueKind);
}

void DvMFieldWidget::connectTable()
{
    connect(m_addButton, SIGNAL(clicked()), m_table, SLOT(addRow()));
    connect(m_deleteButton, SIGNAL(clicked()), m_table, SLOT(deleteRow()));
    connect(m_upButton, SIGNAL(clicked()), m_table, SLOT(swapUpRow()));
    connect(m_downButton, SIGNAL(clicked()), m_table, SLOT(swapDownRow()));
    connect(m_accessBox, SIGNAL(valueChanged(int)), this, SLOT(s_accessRow(int)));
    connect(m_defaultButton, SIGNAL(clicked()), this, SLOT(setDefaultFieldValue()));
    connect(m_ignoreButton, SIGNAL(released()), this, SLOT(ignoreButtonStateChanged()));
}

void DvMFieldWidget::languageChange()
{
    if (!hasTable())
        return;
    m_defaultButton->setText(QString());
    m_ignoreButton->setText(QString());
    const QPair<QWidget*, QString> toolTips[] = {
        {m_defaultButton, tr("Set to default")},
        {m_ignoreButton, tr("Ignore this field")},
        {m_addButton, tr("Add a row")},
        {m_deleteButton, tr("Delete current row")},
        {m_upButton, tr("Bring up current row")},
        {m_downButton, tr("Bring down current row")},
        {m_accessBox, tr("Quick access to rows")},
    };
    for (const auto& row : toolTips) {
        row.first->setToolTip(row.second);
        row.first->setAccessibleName(row.second);
    }
    m_table->setAccessibleName(tr("Values"));
    showRowCount(m_table->rowCount());
    s_showWhetherEditable();
}

bool DvMFieldWidget::accept(SoField* field) const
{
    return field && field->isOfType(m_handledType);
}

void DvMFieldWidget::setField(SoField* field)
{
    if (!hasTable()) {
        m_field = nullptr;
        return;
    }
    // A cell that is being edited is committed while its field lives, and forgotten when it dies.
    if (isFieldDying())
        m_table->delegate().discardOpenEditor();
    else
        m_table->closeOpenEditor();
    if (m_field)
        fieldReleased();
    m_field = accept(field) ? static_cast<SoMField*>(field) : nullptr;
    TvkFieldEditors::setField(m_field);
    if (m_field)
        fieldReplaced();
    else
        showRowCount(0);
}

void DvMFieldWidget::fieldReplaced() {}
void DvMFieldWidget::fieldReleased() {}

QByteArray DvMFieldWidget::rowValue(int row) const
{
    if (!isRow(row))
        return {};
    SbString text;
    SoFieldText::get1(m_field, row, text);
    return {text.getString(), text.getLength()};
}

int DvMFieldWidget::rowCount() const
{
    return m_field ? m_field->getNum() : 0;
}

void DvMFieldWidget::refresh()
{
    if (!m_field || !frame())
        return;
    if (isReadOnly())
        m_table->delegate().discardOpenEditor();
    showRowCount(rowCount());
    m_table->refreshCells();
    m_ignoreButton->setChecked(m_field->isIgnored());
    s_showWhetherEditable();
}

void DvMFieldWidget::s_showWhetherEditable()
{
    if (!m_field || !frame())
        return;
    const bool editable = !isReadOnly();
    for (QPushButton* button :
         {m_addButton, m_deleteButton, m_upButton, m_downButton, m_defaultButton})
        button->setEnabled(editable);
    m_table->setToolTip(readOnlyReason());
}

void DvMFieldWidget::showRowCount(int rows)
{
    m_table->setNumRows(rows);
    m_labelNumElement->setText(tr("of %1").arg(rows));
}

bool DvMFieldWidget::isReadOnly() const
{
    return !m_field || m_field->isConnected();
}

QString DvMFieldWidget::readOnlyReason() const
{
    if (!m_field || !m_field->isConnected())
        return {};
    return tr("The values come from %1 and cannot be edited here")
        .arg(DvFieldMaster::nameOf(*m_field));
}

void DvMFieldWidget::s_accessRow(int number)
{
    m_table->showTableRow(number - 1);
}

void DvMFieldWidget::pushSetValue(int row)
{
    SbString none;
    DvCommands::push<TvkMFSetValueCommand>(m_field, row, none);
}

void DvMFieldWidget::ignoreButtonStateChanged()
{
    if (!m_field)
        return;
    const bool checked = m_ignoreButton->isChecked();
    // As for a single value: a press that is dragged off the button changes nothing.
    if (m_field->isIgnored() == static_cast<SbBool>(checked))
        return;
    m_field->setIgnored(checked);
    DvCommands::push<TvkFieldIgnoredCommand>(m_field, checked);
}

void DvMFieldWidget::setDefaultFieldValue()
{
    if (isReadOnly())
        return;
    m_table->delegate().discardOpenEditor();
    DvDefaultValue::restore(*m_field);
}

void DvMFieldWidget::commitSlider()
{
    // Every slider here stands in a cell.
}

void DvMFieldWidget::revertSlider()
{
    m_table->delegate().discardOpenEditor();
}

void DvMFieldWidget::commitSliderCell(int row, int column)
{
    const auto* const slider = qobject_cast<DvSlider*>(m_table->delegate().openEditor());
    if (slider && !isReadOnly())
        applyCell(row, column, slider->valueText());
}

#include "FieldEditors/MFWidgets/DvTablePopupWidget.h"

#include "FieldEditors/DvButtonIcons.h"
#include "FieldEditors/DvEditorParts.h"
#include "FieldEditors/DvMFieldTable.h"
#include "FieldEditors/DvPopupFrame.h"
#include "FieldEditors/DvRealValidator.h"
#include "FieldEditors/MFWidgets/DvTablePopupLineEdit.h"

#include <QGridLayout>
#include <QPushButton>

DvTablePopupWidget::DvTablePopupWidget(int rows, int columns, DvTableForm form,
                                       const QString& objectName)
    : DvMFieldWidget(std::move(form), objectName), m_rows(rows), m_columns(columns)
{}

DvTablePopupWidget::~DvTablePopupWidget()
{
    // While the slots of this class can still be called.
    deleteFrame();
}

void DvTablePopupWidget::createWidgets()
{
    const bool isBuilt = m_editButton != nullptr;
    DvMFieldWidget::createWidgets();
    if (isBuilt || !frame())
        return;
    m_editButton = DvEditorParts::newButton("m_editButton", DvButtonIcons::edit(), frame());
    manageButtonsLayout().insertWidget(0, m_editButton);
    buildPopup();
    languageChange();
    table().setEditTriggers(QAbstractItemView::NoEditTriggers);
    connect(m_editButton, SIGNAL(clicked()), SLOT(setEditFrame()));
    connect(&table(), SIGNAL(currentCellChanged(int, int, int, int)), SLOT(s_currentRowChanged()));
    connect(&table(), SIGNAL(cellDoubleClicked(int, int)), SLOT(setEditFrame()));
}

void DvTablePopupWidget::buildPopup()
{
    auto* const popup = new DvPopupFrame(frame());
    m_popup = popup;
    for (int row = 0; row < m_rows; ++row) {
        for (int column = 0; column < m_columns; ++column)
            buildPopupLine(popup->grid(), row, column);
    }
    connect(m_popup, SIGNAL(aboutToClose()), SLOT(s_leavePopup()));
}

void DvTablePopupWidget::buildPopupLine(QGridLayout& grid, int row, int column)
{
    auto* const line = new DvTablePopupLineEdit(m_popup, this, "m_popupLine");
    line->setValidator(new DvRealValidator(line));
    line->setAccessibleName(tr("Row %1, column %2").arg(row + 1).arg(column + 1));
    DvEditorParts::widenForNumber(*line);
    grid.addWidget(line, row, column);
    m_lines.add(line);
    connect(line, SIGNAL(editingFinished()), SLOT(s_leavePopup()));
    connect(line, SIGNAL(revertRequested()), SLOT(s_revert()));
}

void DvTablePopupWidget::languageChange()
{
    DvMFieldWidget::languageChange();
    if (!m_editButton)
        return;
    m_editButton->setToolTip(tr("Edit the numbers"));
    m_editButton->setAccessibleName(m_editButton->toolTip());
}

void DvTablePopupWidget::setDefaultFieldValue()
{
    m_lines.clearModified();
    DvMFieldWidget::setDefaultFieldValue();
}

void DvTablePopupWidget::setEditFrame()
{
    DvPopupFrame* const popup = m_popup;
    if (!popup)
        return;
    if (popup->isVisible()) {
        popup->hide();
        return;
    }
    showCurrentRow();
    if (!isRow(table().currentRow()) || isReadOnly())
        return;
    popup->popUpBeside(*m_editButton);
    m_lines.line(0).setFocus(Qt::TabFocusReason);
}

void DvTablePopupWidget::showCurrentRow()
{
    if (isRow(table().currentRow()))
        showRow(m_lines, table().currentRow());
}

void DvTablePopupWidget::s_leavePopup()
{
    if (!m_lines.isModified())
        return;
    if (m_lines.isHalfTyped() || isReadOnly()) {
        s_revert();
        return;
    }
    static_cast<DvTablePopupLineEdit&>(m_lines.line(0)).setCurrentValue(QString());
    m_lines.clearModified();
}

void DvTablePopupWidget::s_revert()
{
    m_lines.clearModified();
    showCurrentRow();
}

void DvTablePopupWidget::s_currentRowChanged()
{
    // What has been typed was for another row.
    s_revert();
}

void DvTablePopupWidget::refresh()
{
    const int rows = table().rowCount();
    DvMFieldWidget::refresh();
    // Where rows have come or gone, the current one may be another.
    if (isReadOnly() || table().rowCount() != rows)
        m_lines.clearModified();
    if (m_popup && isReadOnly())
        m_popup->hide();
    if (field())
        showCurrentRow();
}

void DvTablePopupWidget::fieldReleased()
{
    if (isFieldDying())
        m_lines.clearModified();
    if (m_popup)
        m_popup->hide();
}

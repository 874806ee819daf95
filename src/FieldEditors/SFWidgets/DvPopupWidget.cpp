#include "FieldEditors/SFWidgets/DvPopupWidget.h"

#include "FieldEditors/DvButtonIcons.h"
#include "FieldEditors/DvEditorParts.h"
#include "FieldEditors/DvLayoutConstants.h"
#include "FieldEditors/DvLineEdit.h"
#include "FieldEditors/DvPopupFrame.h"
#include "FieldEditors/DvRealValidator.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>

DvPopupWidget::DvPopupWidget(int rows, int columns, const QString& objectName)
    : DvSFLineWidget(objectName), m_rows(rows), m_columns(columns)
{}

DvPopupWidget::~DvPopupWidget() = default;

void DvPopupWidget::buildEditor(QHBoxLayout& editLayout)
{
    DvSFLineWidget::buildEditor(editLayout);
    m_editButton = new QPushButton(frame());
    m_editButton->setObjectName(QStringLiteral("m_editButton"));
    m_editButton->setMaximumSize(DvLayoutConstants::value("buttonWidth"),
                                 DvLayoutConstants::value("buttonHeight"));
    m_editButton->setIcon(DvButtonIcons::edit());
    editLayout.addWidget(m_editButton);
    connect(m_editButton, SIGNAL(clicked()), this, SLOT(managePopFramePos()));
    buildPopup();
}

void DvPopupWidget::buildPopup()
{
    auto* const popup = new DvPopupFrame(frame());
    m_popup = popup;
    for (int row = 0; row < m_rows; ++row) {
        for (int column = 0; column < m_columns; ++column)
            buildPopupLine(popup->grid(), row, column);
    }
    connect(m_popup, SIGNAL(aboutToClose()), this, SLOT(finishPopup()));
}

void DvPopupWidget::buildPopupLine(QGridLayout& grid, int row, int column)
{
    auto* const line = new DvLineEdit("m_popupLine", m_popup);
    line->setValidator(newValidator(line));
    line->setAccessibleName(tr("Row %1, column %2").arg(row + 1).arg(column + 1));
    DvEditorParts::widenForNumber(*line);
    grid.addWidget(line, row, column);
    m_lines.add(line);
    connect(line, SIGNAL(editingFinished()), this, SLOT(setFocusLeaveEvent()));
    connect(line, SIGNAL(returnPressed()), this, SLOT(setCommandValue()));
    connect(line, SIGNAL(revertRequested()), this, SLOT(revertPendingEdit()));
}

QValidator* DvPopupWidget::newValidator(QObject* parent) const
{
    return new DvRealValidator(parent);
}

void DvPopupWidget::connectLine()
{
    // The whole text is one edit: nothing of it is applied while it is being typed.
    connect(&line(), SIGNAL(editingFinished()), this, SLOT(setFocusLeaveEvent()));
    connect(&line(), SIGNAL(returnPressed()), this, SLOT(applyChanges()));
    connect(&line(), SIGNAL(revertRequested()), this, SLOT(revertPendingEdit()));
}

void DvPopupWidget::languageChange()
{
    DvSFLineWidget::languageChange();
    if (!m_editButton)
        return;
    m_editButton->setToolTip(tr("Edit the numbers"));
    m_editButton->setAccessibleName(m_editButton->toolTip());
}

void DvPopupWidget::managePopFramePos()
{
    DvPopupFrame* const popup = m_popup;
    if (!popup)
        return;
    if (popup->isVisible()) {
        popup->hide();
        return;
    }
    popup->popUpBeside(*m_editButton);
    m_lines.line(0).setFocus(Qt::TabFocusReason);
}

void DvPopupWidget::finishPopup()
{
    if (m_lines.isHalfTyped())
        revertPendingEdit();
    else
        setFocusLeaveEvent();
}

bool DvPopupWidget::isTextBeingEdited() const
{
    return DvSFLineWidget::hasPendingEdit();
}

bool DvPopupWidget::hasPendingEdit() const
{
    return isTextBeingEdited() || m_lines.isModified();
}

void DvPopupWidget::clearPendingEdit()
{
    DvSFLineWidget::clearPendingEdit();
    m_lines.clearModified();
}

void DvPopupWidget::fieldReleased()
{
    if (m_popup)
        m_popup->hide();
}

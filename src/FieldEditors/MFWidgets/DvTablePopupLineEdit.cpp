#include "FieldEditors/MFWidgets/DvTablePopupLineEdit.h"

#include "FieldEditors/DvMFieldTable.h"
#include "FieldEditors/MFWidgets/DvTablePopupWidget.h"

DvTablePopupLineEdit::DvTablePopupLineEdit(QWidget* parent, DvTablePopupWidget* popupWidget,
                                           const char* name)
    : DvLineEdit(name, parent), m_popupWidget(popupWidget)
{
    setAlignment(Qt::AlignLeft);
}

void DvTablePopupLineEdit::setCurrentValue(const QString&)
{
    m_popupWidget->applyCell(m_popupWidget->table().currentRow(), -1, QString());
}

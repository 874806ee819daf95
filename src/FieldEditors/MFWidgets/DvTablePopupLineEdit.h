#pragma once

#include "FieldEditors/DvLineEdit.h"

class DvTablePopupWidget;

/** One line of the pop-up of a DvTablePopupWidget. */
class DvTablePopupLineEdit final : public DvLineEdit
{
    Q_OBJECT

public:
    DvTablePopupLineEdit(QWidget* parent, DvTablePopupWidget* popupWidget, const char* name);

public slots:
    /** Has the current row written from all lines of the pop-up; the text itself is not used. */
    void setCurrentValue(const QString& text);

private:
    DvTablePopupWidget* const m_popupWidget; ///< not owned; it owns the pop-up
};

#include "FieldEditors/DvEditorFrame.h"

#include <QEvent>

void DvEditorFrame::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        emit languageChanged();
    QFrame::changeEvent(event);
}

void DvEditorFrame::enterEvent(QEvent* event)
{
    emit entered();
    QFrame::enterEvent(event);
}

#include "FieldEditors/DvEditorFrame.h"

#include <QEvent>

void DvEditorFrame::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        emit languageChanged();
    QFrame::changeEvent(event);
}

#include "FieldEditors/TvkFieldEditorDockWin.h"

TvkFieldEditorDockWin::TvkFieldEditorDockWin()
    : TvkEditorDock({"Field Editor", "Field Editor for Tavrik.", "TvkFieldEditorDockWin",
                     SIGNAL(selectedFieldChanged(SoField*)),
                     SLOT(s_selectedFieldChanged(SoField*))})
{}

void TvkFieldEditorDockWin::s_selectedFieldChanged(SoField* field)
{
    editObject(SoTypedObject(field));
}

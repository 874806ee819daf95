#include "FieldEditors/TvkNodeEditor.h"

TvkNodeEditor::TvkNodeEditor()
    : TvkEditorDock({"Node Editor", "Node Editor for Tavrik.", "TvkNodeEditor",
                     SIGNAL(selectedNodeChanged(SoFieldContainer*)),
                     SLOT(s_selectedNodeChanged(SoFieldContainer*))})
{}

void TvkNodeEditor::s_selectedNodeChanged(SoFieldContainer* node)
{
    editObject(SoTypedObject(node));
}

#pragma once

#include "FieldEditors/TvkEditorDock.h"

class SoFieldContainer;

/**
 * The dock that shows the editor of the node selected in the host. The plug-in has no such editor
 * itself: what there is to see comes from the host or from another plug-in.
 */
class TvkNodeEditor final : public TvkEditorDock
{
    Q_OBJECT

public:
    TvkNodeEditor();

public slots:
    void s_selectedNodeChanged(SoFieldContainer* node);
};

#pragma once

#include "FieldEditors/TvkEditorDock.h"

class SoField;

/** The dock that shows the editor of the field selected in the host. */
class TvkFieldEditorDockWin final : public TvkEditorDock
{
    Q_OBJECT

public:
    TvkFieldEditorDockWin();

public slots:
    void s_selectedFieldChanged(SoField* field);
};

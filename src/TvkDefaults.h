#pragma once

#include "FieldEditors/SFWidgets/DvSFBoolWidget.h"
#include "FieldEditors/SFWidgets/DvSFLineWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec3fWidget.h"
#include "FieldEditors/TvkFieldEditorDockWin.h"

#include <TvkPlugin.h>

/** The plug-in object: owns every extension of the library and hands them to the host. */
class TvkDefaults final : public TvkPlugin
{
public:
    TvkDefaults();
    ~TvkDefaults() override;

    void load() override;

private:
    // In order of construction. The docks choose among the editors in this order.
    DvSFBoolWidget m_sfBoolWidget;
    DvSFLineWidget m_sfLineWidget;
    DvSFVec3fWidget m_sfVec3fWidget;
    TvkFieldEditorDockWin m_fieldEditorDockWin;
};

#pragma once

#include "Console/TvkConsole.h"
#include "FieldEditors/MFWidgets/DvMFColorWidget.h"
#include "FieldEditors/MFWidgets/DvMFDefaultFieldWidget.h"
#include "FieldEditors/MFWidgets/DvMFDoubleWidget.h"
#include "FieldEditors/MFWidgets/DvMFFloatWidget.h"
#include "FieldEditors/MFWidgets/DvMFInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFMatrixWidget.h"
#include "FieldEditors/MFWidgets/DvMFPlaneWidget.h"
#include "FieldEditors/MFWidgets/DvMFRotationWidget.h"
#include "FieldEditors/MFWidgets/DvMFShortWidget.h"
#include "FieldEditors/MFWidgets/DvMFStringWidget.h"
#include "FieldEditors/MFWidgets/DvMFUInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFUShortWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec2fWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec2i32Widget.h"
#include "FieldEditors/MFWidgets/DvMFVec2sWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec3fWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec4fWidget.h"
#include "FieldEditors/SFWidgets/DvSFBitMaskWidget.h"
#include "FieldEditors/SFWidgets/DvSFBoolWidget.h"
#include "FieldEditors/SFWidgets/DvSFBox3sWidget.h"
#include "FieldEditors/SFWidgets/DvSFColorWidget.h"
#include "FieldEditors/SFWidgets/DvSFDoubleWidget.h"
#include "FieldEditors/SFWidgets/DvSFEnumWidget.h"
#include "FieldEditors/SFWidgets/DvSFFilePathStringWidget.h"
#include "FieldEditors/SFWidgets/DvSFFloatWidget.h"
#include "FieldEditors/SFWidgets/DvSFImageWidget.h"
#include "FieldEditors/SFWidgets/DvSFInt32Widget.h"
#include "FieldEditors/SFWidgets/DvSFLineWidget.h"
#include "FieldEditors/SFWidgets/DvSFMatrixWidget.h"
#include "FieldEditors/SFWidgets/DvSFNameWidget.h"
#include "FieldEditors/SFWidgets/DvSFPlaneWidget.h"
#include "FieldEditors/SFWidgets/DvSFRotationWidget.h"
#include "FieldEditors/SFWidgets/DvSFShortWidget.h"
#include "FieldEditors/SFWidgets/DvSFStringWidget.h"
#include "FieldEditors/SFWidgets/DvSFUInt32Widget.h"
#include "FieldEditors/SFWidgets/DvSFUShortWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec2fWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec2i32Widget.h"
#include "FieldEditors/SFWidgets/DvSFVec2sWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec3fWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec4fWidget.h"
#include "FieldEditors/TvkFieldEditorDockWin.h"
#include "FieldEditors/TvkNodeEditor.h"
#include "ProfileSelector/TvkProfileSelectorExtension.h"

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
    TvkProfileSelectorExtension m_profileSelector;
    TvkConsole m_console;
    DvMFColorWidget m_mfColorWidget;
    DvMFDefaultFieldWidget m_mfDefaultFieldWidget;
    DvMFDoubleWidget m_mfDoubleWidget;
    DvMFFloatWidget m_mfFloatWidget;
    DvMFInt32Widget m_mfInt32Widget;
    DvMFMatrixWidget m_mfMatrixWidget;
    DvMFPlaneWidget m_mfPlaneWidget;
    DvMFRotationWidget m_mfRotationWidget;
    DvMFShortWidget m_mfShortWidget;
    DvMFStringWidget m_mfStringWidget;
    DvMFUInt32Widget m_mfUInt32Widget;
    DvMFUShortWidget m_mfUShortWidget;
    DvMFVec2fWidget m_mfVec2fWidget;
    DvMFVec2i32Widget m_mfVec2i32Widget;
    DvMFVec2sWidget m_mfVec2sWidget;
    DvMFVec3fWidget m_mfVec3fWidget;
    DvMFVec4fWidget m_mfVec4fWidget;
    DvSFBitMaskWidget m_sfBitMaskWidget;
    DvSFBoolWidget m_sfBoolWidget;
    DvSFBox3sWidget m_sfBox3sWidget;
    DvSFColorWidget m_sfColorWidget;
    DvSFEnumWidget m_sfEnumWidget;
    DvSFDoubleWidget m_sfDoubleWidget;
    DvSFFilePathStringWidget m_sfFilePathStringWidget;
    DvSFFloatWidget m_sfFloatWidget;
    DvSFImageWidget m_sfImageWidget;
    DvSFInt32Widget m_sfInt32Widget;
    DvSFLineWidget m_sfLineWidget;
    DvSFMatrixWidget m_sfMatrixWidget;
    DvSFNameWidget m_sfNameWidget;
    DvSFPlaneWidget m_sfPlaneWidget;
    DvSFRotationWidget m_sfRotationWidget;
    DvSFShortWidget m_sfShortWidget;
    DvSFStringWidget m_sfStringWidget;
    DvSFUInt32Widget m_sfUInt32Widget;
    DvSFUShortWidget m_sfUShortWidget;
    DvSFVec2fWidget m_sfVec2fWidget;
    DvSFVec2i32Widget m_sfVec2i32Widget;
    DvSFVec2sWidget m_sfVec2sWidget;
    DvSFVec3fWidget m_sfVec3fWidget;
    DvSFVec4fWidget m_sfVec4fWidget;
    TvkFieldEditorDockWin m_fieldEditorDockWin;
    TvkNodeEditor m_nodeEditor;
};

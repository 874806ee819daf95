#include "tests/contracts/SingleValueEditors.h"

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

namespace {

template <class Editor>
SingleValueEditor row(const char* name, const char* field)
{
    return {name, []() -> std::unique_ptr<DvSFieldWidget> { return std::make_unique<Editor>(); },
            field};
}

} // namespace

QList<SingleValueEditor> singleValueEditors()
{
    return {
        row<DvSFBitMaskWidget>("DvSFBitMaskWidget", "sfBitMask"),
        row<DvSFBoolWidget>("DvSFBoolWidget", "sfBool"),
        row<DvSFBox3sWidget>("DvSFBox3sWidget", "sfBox3s"),
        row<DvSFColorWidget>("DvSFColorWidget", "sfColor"),
        row<DvSFDoubleWidget>("DvSFDoubleWidget", "sfDouble"),
        row<DvSFEnumWidget>("DvSFEnumWidget", "sfEnum"),
        row<DvSFFilePathStringWidget>("DvSFFilePathStringWidget", "sfFilePathString"),
        row<DvSFFloatWidget>("DvSFFloatWidget", "sfFloat"),
        row<DvSFImageWidget>("DvSFImageWidget", "sfImage"),
        row<DvSFInt32Widget>("DvSFInt32Widget", "sfInt32"),
        row<DvSFLineWidget>("DvSFLineWidget", "sfTime"),
        row<DvSFLineWidget>("DvSFLineWidget", "sfVec3d"),
        row<DvSFMatrixWidget>("DvSFMatrixWidget", "sfMatrix"),
        row<DvSFNameWidget>("DvSFNameWidget", "sfName"),
        row<DvSFPlaneWidget>("DvSFPlaneWidget", "sfPlane"),
        row<DvSFRotationWidget>("DvSFRotationWidget", "sfRotation"),
        row<DvSFShortWidget>("DvSFShortWidget", "sfShort"),
        row<DvSFStringWidget>("DvSFStringWidget", "sfString"),
        row<DvSFUInt32Widget>("DvSFUInt32Widget", "sfUInt32"),
        row<DvSFUShortWidget>("DvSFUShortWidget", "sfUShort"),
        row<DvSFVec2fWidget>("DvSFVec2fWidget", "sfVec2f"),
        row<DvSFVec2i32Widget>("DvSFVec2i32Widget", "sfVec2i32"),
        row<DvSFVec2sWidget>("DvSFVec2sWidget", "sfVec2s"),
        row<DvSFVec3fWidget>("DvSFVec3fWidget", "sfVec3f"),
        row<DvSFVec4fWidget>("DvSFVec4fWidget", "sfVec4f"),
    };
}

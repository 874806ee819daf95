#include "tests/support/SoEveryField.h"

#include <cassert>

SO_NODE_SOURCE(SoEveryField)

namespace {

/** Three rows as a field's default: the macros know of one only. */
void setRows(SoMField& field, const char* text)
{
    const SbBool isRead = field.set(text);
    assert(isRead && field.getNum() == 3);
    static_cast<void>(isRead);
    field.setDefault(TRUE);
}

} // namespace

void SoEveryField::initClass()
{
    if (getClassTypeId().isBad())
        SO_NODE_INIT_CLASS(SoEveryField, SoNode, "Node");
}

SoEveryField::SoEveryField()
{
    SO_NODE_CONSTRUCTOR(SoEveryField);
    addEnums();
    addNumbers();
    addVectors();
    addRows();
    addRowsOfVectors();
    SO_NODE_ADD_FIELD(sfBool, (TRUE));
    SO_NODE_ADD_FIELD(sfFilePathString, ("scene.iv"));
    SO_NODE_ADD_FIELD(sfImage, (SbVec2s(0, 0), 0, nullptr));
    SO_NODE_ADD_FIELD(sfName, ("name"));
    SO_NODE_ADD_FIELD(sfNode, (nullptr));
    SO_NODE_ADD_FIELD(sfString, ("text"));
    SO_NODE_ADD_FIELD(sfTime, (SbTime(1.5)));
}

void SoEveryField::addEnums()
{
    SO_NODE_DEFINE_ENUM_VALUE(Choice, FIRST);
    SO_NODE_DEFINE_ENUM_VALUE(Choice, SECOND);
    SO_NODE_DEFINE_ENUM_VALUE(Choice, THIRD);
    SO_NODE_DEFINE_ENUM_VALUE(Part, SIDES);
    SO_NODE_DEFINE_ENUM_VALUE(Part, TOP);
    SO_NODE_DEFINE_ENUM_VALUE(Part, BOTTOM);
    SO_NODE_DEFINE_ENUM_VALUE(Part, ALL);
    SO_NODE_ADD_FIELD(sfBitMask, (SIDES));
    SO_NODE_ADD_FIELD(sfEnum, (FIRST));
    SO_NODE_SET_SF_ENUM_TYPE(sfBitMask, Part);
    SO_NODE_SET_SF_ENUM_TYPE(sfEnum, Choice);
}

void SoEveryField::addNumbers()
{
    SO_NODE_ADD_FIELD(sfDouble, (1.5));
    SO_NODE_ADD_FIELD(sfFloat, (1.5F));
    SO_NODE_ADD_FIELD(sfInt32, (7));
    SO_NODE_ADD_FIELD(sfShort, (7));
    SO_NODE_ADD_FIELD(sfUInt32, (7));
    SO_NODE_ADD_FIELD(sfUShort, (7));
}

void SoEveryField::addVectors()
{
    SO_NODE_ADD_FIELD(sfBox3s, (SbBox3s(-1, -2, -3, 4, 5, 6)));
    SO_NODE_ADD_FIELD(sfColor, (0.25F, 0.5F, 0.75F));
    SO_NODE_ADD_FIELD(sfMatrix, (SbMatrix::identity()));
    SO_NODE_ADD_FIELD(sfPlane, (SbPlane(SbVec3f(0.0F, 1.0F, 0.0F), 2.0F)));
    SO_NODE_ADD_FIELD(sfRotation, (SbRotation(SbVec3f(0.0F, 0.0F, 1.0F), 1.5F)));
    SO_NODE_ADD_FIELD(sfVec2f, (1.0F, 2.0F));
    SO_NODE_ADD_FIELD(sfVec2i32, (1, 2));
    SO_NODE_ADD_FIELD(sfVec2s, (1, 2));
    SO_NODE_ADD_FIELD(sfVec3d, (1.0, 2.0, 3.0));
    SO_NODE_ADD_FIELD(sfVec3f, (1.0F, 2.0F, 3.0F));
    SO_NODE_ADD_FIELD(sfVec4f, (1.0F, 2.0F, 3.0F, 4.0F));
}

void SoEveryField::addRows()
{
    SO_NODE_ADD_FIELD(mfDouble, (0.0));
    SO_NODE_ADD_FIELD(mfEnum, (FIRST));
    SO_NODE_ADD_FIELD(mfFloat, (0.0F));
    SO_NODE_ADD_FIELD(mfInt32, (0));
    SO_NODE_ADD_FIELD(mfNode, (nullptr));
    SO_NODE_ADD_FIELD(mfShort, (0));
    SO_NODE_ADD_FIELD(mfString, (""));
    SO_NODE_ADD_FIELD(mfTime, (SbTime::zero()));
    SO_NODE_ADD_FIELD(mfUInt32, (0));
    SO_NODE_ADD_FIELD(mfUShort, (0));
    SO_NODE_SET_MF_ENUM_TYPE(mfEnum, Choice);
    setRows(mfDouble, "[1.5, 2.5, 3.5]");
    setRows(mfEnum, "[FIRST, SECOND, THIRD]");
    setRows(mfFloat, "[1.5, 2.5, 3.5]");
    setRows(mfInt32, "[1, 2, 3]");
    setRows(mfNode, "[Cube { }, Cone { }, Sphere { }]");
    setRows(mfShort, "[1, 2, 3]");
    setRows(mfString, "[\"one\", \"two\", \"three\"]");
    setRows(mfTime, "[1.5, 2.5, 3.5]");
    setRows(mfUInt32, "[1, 2, 3]");
    setRows(mfUShort, "[1, 2, 3]");
}

void SoEveryField::addRowsOfVectors()
{
    SO_NODE_ADD_FIELD(mfColor, (0.0F, 0.0F, 0.0F));
    SO_NODE_ADD_FIELD(mfMatrix, (SbMatrix::identity()));
    SO_NODE_ADD_FIELD(mfPlane, (SbPlane(SbVec3f(0.0F, 1.0F, 0.0F), 0.0F)));
    SO_NODE_ADD_FIELD(mfRotation, (SbRotation::identity()));
    SO_NODE_ADD_FIELD(mfVec2f, (0.0F, 0.0F));
    SO_NODE_ADD_FIELD(mfVec2i32, (0, 0));
    SO_NODE_ADD_FIELD(mfVec2s, (0, 0));
    SO_NODE_ADD_FIELD(mfVec3f, (0.0F, 0.0F, 0.0F));
    SO_NODE_ADD_FIELD(mfVec4f, (0.0F, 0.0F, 0.0F, 0.0F));
    setRows(mfColor, "[1 0 0.5, 0 1 0.5, 0.25 0.5 0.75]");
    setRows(mfMatrix, "[1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16,"
                      " 1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1,"
                      " 2 0 0 0 0 2 0 0 0 0 2 0 0 0 0 1]");
    setRows(mfPlane, "[1 0 0 1, 0 1 0 2, 0 0 1 3]");
    setRows(mfRotation, "[1 0 0 3.1415927, 0 0 1 0, 0 0 1 3.1415927]");
    setRows(mfVec2f, "[1 2, 3 4, 5 6]");
    setRows(mfVec2i32, "[1 2, 3 4, 5 6]");
    setRows(mfVec2s, "[1 2, 3 4, 5 6]");
    setRows(mfVec3f, "[1 2 3, 4 5 6, 7 8 9]");
    setRows(mfVec4f, "[1 2 3 4, 5 6 7 8, 9 10 11 12]");
}

SoEveryField::~SoEveryField() = default;

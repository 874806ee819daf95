#include "tests/support/SoEveryField.h"

SO_NODE_SOURCE(SoEveryField)

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

SoEveryField::~SoEveryField() = default;

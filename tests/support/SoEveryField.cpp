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
    SO_NODE_ADD_FIELD(sfBool, (TRUE));
    SO_NODE_ADD_FIELD(sfVec3f, (1.0F, 2.0F, 3.0F));
    SO_NODE_ADD_FIELD(sfTime, (SbTime(1.5)));
    SO_NODE_ADD_FIELD(sfVec3d, (1.0, 2.0, 3.0));
    SO_NODE_ADD_FIELD(sfNode, (nullptr));
}

SoEveryField::~SoEveryField() = default;

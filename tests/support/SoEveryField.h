#pragma once

#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoSubNode.h>

/** A node for tests, with a field of every type that an editor is tested on. */
class SoEveryField : public SoNode
{
    typedef SoNode inherited;
    SO_NODE_HEADER(SoEveryField);

public:
    static void initClass();
    SoEveryField();

    SoSFBool sfBool;
    SoSFVec3f sfVec3f;
    SoSFTime sfTime;
    SoSFVec3d sfVec3d;
    SoSFNode sfNode;

protected:
    ~SoEveryField() override;
};

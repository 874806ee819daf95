#pragma once

#include "scenegraph/SoSFFilePathString.h"

#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoSubNode.h>

/** A node for tests, with a field of every type that an editor is tested on. */
class SoEveryField : public SoNode
{
    typedef SoNode inherited;
    SO_NODE_HEADER(SoEveryField);

public:
    enum Choice { FIRST = 1, SECOND = 2, THIRD = 7 };
    enum Part { SIDES = 1, TOP = 2, BOTTOM = 4, ALL = 7 };

    static void initClass();
    SoEveryField();

    SoSFBitMask sfBitMask;
    SoSFBool sfBool;
    SoSFBox3s sfBox3s;
    SoSFColor sfColor;
    SoSFDouble sfDouble;
    SoSFEnum sfEnum;
    SoSFFilePathString sfFilePathString;
    SoSFFloat sfFloat;
    SoSFImage sfImage;
    SoSFInt32 sfInt32;
    SoSFMatrix sfMatrix;
    SoSFName sfName;
    SoSFNode sfNode;
    SoSFPlane sfPlane;
    SoSFRotation sfRotation;
    SoSFShort sfShort;
    SoSFString sfString;
    SoSFTime sfTime;
    SoSFUInt32 sfUInt32;
    SoSFUShort sfUShort;
    SoSFVec2f sfVec2f;
    SoSFVec2i32 sfVec2i32;
    SoSFVec2s sfVec2s;
    SoSFVec3d sfVec3d;
    SoSFVec3f sfVec3f;
    SoSFVec4f sfVec4f;

    // Three rows each.
    SoMFColor mfColor;
    SoMFDouble mfDouble;
    SoMFEnum mfEnum;
    SoMFFloat mfFloat;
    SoMFInt32 mfInt32;
    SoMFMatrix mfMatrix;
    SoMFNode mfNode;
    SoMFPlane mfPlane;
    SoMFRotation mfRotation;
    SoMFShort mfShort;
    SoMFString mfString;
    SoMFTime mfTime;
    SoMFUInt32 mfUInt32;
    SoMFUShort mfUShort;
    SoMFVec2f mfVec2f;
    SoMFVec2i32 mfVec2i32;
    SoMFVec2s mfVec2s;
    SoMFVec3f mfVec3f;
    SoMFVec4f mfVec4f;

protected:
    ~SoEveryField() override;

private:
    void addEnums();
    void addNumbers();
    void addVectors();
    void addRows();
    void addRowsOfVectors();
};

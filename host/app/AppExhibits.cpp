#include "app/AppExhibits.h"

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/fields/SoSFImage.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QColor>

#include <cstring>

namespace {

const char* const s_scene =
    "#Inventor V2.1 ascii\n"
    "Separator {\n"
    "  DEF things Things {\n"
    "    fields [ SFBool on, SFBox3s box, SFColor color, SFDouble precise, SFFilePathString path,\n"
    "      SFFloat real, SFImage image, SFInt32 number, SFTime time, SFMatrix matrix,\n"
    "      SFName name, SFPlane plane, SFRotation rotation, SFShort little, SFString text,\n"
    "      SFUInt32 natural, SFUShort littleNatural, SFVec2f spot, SFVec2i32 cell,\n"
    "      SFVec2s littleCell, SFVec3f place, SFVec4f quad ]\n"
    "    on TRUE  box -10 -20 -30  10 20 30  color 0.93 0.55 0.13  precise 3.141592653589793\n"
    "    path \"pictures/parrot.png\"  real 2.5  number 42  time 12.5  name \"parrot\"\n"
    "    matrix 1 0 0 0  0 0.866 0.5 0  0 -0.5 0.866 0  4 5 6 1  plane 0 1 0 2\n"
    "    rotation 0 1 0 0.7853982  little -7  text \"A parrot said \\\"hello\\\"\"\n"
    "    natural 255  littleNatural 31  spot 0.5 0.25  cell 1920 1080  littleCell 640 480\n"
    "    place 1 -2.5 1e-07  quad 1 2 3 4\n"
    "  }\n"
    "  DEF lists Lists {\n"
    "    fields [ MFBool steps, MFColor palette, MFDouble masses, MFFloat weights, MFInt32 counts,\n"
    "      MFMatrix places, MFPlane walls, MFRotation turns, MFShort heights, MFString captions,\n"
    "      MFUInt32 masks, MFUShort ports, MFVec2f outline, MFVec2i32 cells, MFVec2s screens,\n"
    "      MFVec3f corners, MFVec4f weighted ]\n"
    "    steps [ TRUE, FALSE, TRUE, TRUE ]\n"
    "    palette [ 0.93 0.55 0.13, 0.2 0.6 0.3, 0.15 0.35 0.75, 0.95 0.9 0.4, 0.2 0.1 0.25 ]\n"
    "    masses [ 5.972e24, 7.342e22, 1.989e30, 3.141592653589793 ]\n"
    "    weights [ 0.5, 2.5, 7.25, 1e-07, 9 ]  counts [ 12, 7, -3, 100 ]\n"
    "    places [ 1 0 0 0  0 1 0 0  0 0 1 0  0 0 0 1, 1 0 0 0  0 0.866 0.5 0  0 -0.5 0.866 0  4 5 6 1,\n"
    "      2 0 0 0  0 2 0 0  0 0 2 0  -1 0 0 1 ]\n"
    "    walls [ 1 0 0 2, 0 1 0 -3.5, 0 0 1 0, 0.6 0.8 0 1 ]\n"
    "    turns [ 0 0 1 0, 0 1 0 0.7853982, 1 0 0 1.5707964, 0.6 0.8 0 3 ]\n"
    "    heights [ -120, 4, 8848, -7 ]\n"
    "    captions [ \"Good morning\", \"A parrot said \\\"hello\\\"\", \"\",\n"
    "      \"A caption that is too long for a narrow window, and then some\" ]\n"
    "    masks [ 255, 31, 4294967295, 0 ]  ports [ 80, 443, 8080, 65535 ]\n"
    "    outline [ 0 0, 0.5 0.25, 1 0.1234567, -1.5 3 ]  cells [ 0 0, 1920 1080, -5 7 ]\n"
    "    screens [ 640 480, 800 600, 1024 768 ]\n"
    "    corners [ 0 0 0, 1 -2.5 1e-07, 0.1234567 2 -3, 10 20 30, 4 4 4 ]\n"
    "    weighted [ 1 2 3 1, 0.5 0 -1 0.25, 7 8 9 2 ]\n"
    "  }\n"
    "  DEF style DrawStyle { style LINES }\n"
    "  DEF can Cylinder { parts (SIDES | TOP) }\n"
    "}\n";

SoSeparator* readScene()
{
    SoInput input;
    input.setBuffer(s_scene, std::strlen(s_scene));
    return SoDB::readAll(&input);
}

/** A sky above a meadow. */
void paintImage(SoSFImage& field)
{
    const SbVec2s size(96, 64);
    QByteArray pixels;
    for (int y = 0; y < size[1]; ++y) {
        for (int x = 0; x < size[0]; ++x) {
            const bool isSky = y > 20 + (x * (96 - x)) / 200;
            const QRgb color = isSky ? qRgb(90 + y, 150 + y, 230) : qRgb(60 + x, 120 + 2 * y, 40);
            pixels.append(char(qRed(color))).append(char(qGreen(color))).append(char(qBlue(color)));
        }
    }
    const QVector<unsigned char> bytes(pixels.begin(), pixels.end());
    field.setValue(size, 3, bytes.constData());
}

SoNode* child(const SoSeparator& scene, const char* name)
{
    for (int i = 0; i < scene.getNumChildren(); ++i)
        if (scene.getChild(i)->getName() == name)
            return scene.getChild(i);
    return nullptr;
}

} // namespace

const QVector<AppExhibit>& AppExhibits::all()
{
    static const QVector<AppExhibit> s_exhibits = {
        {"DvSFBitMaskWidget", "can", "parts"},
        {"DvSFBoolWidget", "things", "on"},
        {"DvSFBox3sWidget", "things", "box"},
        {"DvSFColorWidget", "things", "color"},
        {"DvSFDoubleWidget", "things", "precise"},
        {"DvSFEnumWidget", "style", "style"},
        {"DvSFFilePathStringWidget", "things", "path"},
        {"DvSFFloatWidget", "things", "real"},
        {"DvSFImageWidget", "things", "image"},
        {"DvSFInt32Widget", "things", "number"},
        {"DvSFLineWidget", "things", "time"},
        {"DvSFMatrixWidget", "things", "matrix"},
        {"DvSFNameWidget", "things", "name"},
        {"DvSFPlaneWidget", "things", "plane"},
        {"DvSFRotationWidget", "things", "rotation"},
        {"DvSFShortWidget", "things", "little"},
        {"DvSFStringWidget", "things", "text"},
        {"DvSFUInt32Widget", "things", "natural"},
        {"DvSFUShortWidget", "things", "littleNatural"},
        {"DvSFVec2fWidget", "things", "spot"},
        {"DvSFVec2i32Widget", "things", "cell"},
        {"DvSFVec2sWidget", "things", "littleCell"},
        {"DvSFVec3fWidget", "things", "place"},
        {"DvSFVec4fWidget", "things", "quad"},
        {"DvMFColorWidget", "lists", "palette"},
        {"DvMFDefaultFieldWidget", "lists", "steps"},
        {"DvMFDoubleWidget", "lists", "masses"},
        {"DvMFFloatWidget", "lists", "weights", 1},
        {"DvMFInt32Widget", "lists", "counts", 1},
        {"DvMFMatrixWidget", "lists", "places"},
        {"DvMFPlaneWidget", "lists", "walls"},
        {"DvMFRotationWidget", "lists", "turns"},
        {"DvMFShortWidget", "lists", "heights", 1},
        {"DvMFStringWidget", "lists", "captions"},
        {"DvMFUInt32Widget", "lists", "masks", 1},
        {"DvMFUShortWidget", "lists", "ports", 1},
        {"DvMFVec2fWidget", "lists", "outline"},
        {"DvMFVec2i32Widget", "lists", "cells"},
        {"DvMFVec2sWidget", "lists", "screens"},
        {"DvMFVec3fWidget", "lists", "corners"},
        {"DvMFVec4fWidget", "lists", "weighted"},
    };
    return s_exhibits;
}

AppExhibits::AppExhibits() : m_scene(readScene())
{
    if (!m_scene)
        return;
    m_scene->ref();
    paintImage(*static_cast<SoSFImage*>(child(*m_scene, "things")->getField("image")));
}

AppExhibits::~AppExhibits()
{
    if (m_scene)
        m_scene->unref();
}

SoNode* AppExhibits::node(const AppExhibit& exhibit) const
{
    return m_scene ? child(*m_scene, exhibit.node) : nullptr;
}

SoField* AppExhibits::field(const AppExhibit& exhibit) const
{
    SoNode* const owner = node(exhibit);
    return owner ? owner->getField(exhibit.field) : nullptr;
}

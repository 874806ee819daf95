#include "benchmarks/support/MFieldKind.h"

#include "FieldEditors/MFWidgets/DvMFFloatWidget.h"
#include "FieldEditors/MFWidgets/DvMFStringWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec3fWidget.h"

#include <Inventor/fields/SoMFFloat.h>
#include <Inventor/fields/SoMFString.h>
#include <Inventor/fields/SoMFVec3f.h>

namespace {

template <class Editor>
std::unique_ptr<DvMFieldWidget> newEditorOf()
{
    return std::make_unique<Editor>();
}

float real(int number)
{
    return static_cast<float>(number) * 0.25F;
}

void setFloat(SoMField& field, int row, int number)
{
    static_cast<SoMFFloat&>(field).set1Value(row, real(number));
}

void setVec3f(SoMField& field, int row, int number)
{
    const SbVec3f value(real(number), real(number + 1), real(number + 2));
    static_cast<SoMFVec3f&>(field).set1Value(row, value);
}

void setString(SoMField& field, int row, int number)
{
    SbString value("value ");
    value += SbString(number);
    static_cast<SoMFString&>(field).set1Value(row, value);
}

} // namespace

QByteArray MFieldKind::measure(const QString& work, double seconds) const
{
    return QStringLiteral("%1, %2 (%3 ms)")
        .arg(work, QLatin1String(name))
        .arg(seconds * 1e3, 0, 'f', 3)
        .toLatin1();
}

std::vector<MFieldKind> MFieldKind::all()
{
    return {
        {"float", 1, true, newEditorOf<DvMFFloatWidget>, "LevelOfDetail", "screenArea", setFloat},
        {"Vec3f", 3, false, newEditorOf<DvMFVec3fWidget>, "Coordinate3", "point", setVec3f},
        {"string", 1, false, newEditorOf<DvMFStringWidget>, "AsciiText", "string", setString},
    };
}

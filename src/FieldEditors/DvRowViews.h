#pragma once

#include "FieldEditors/DvFieldText.h"
#include "FieldEditors/DvValueViews.h"

#include <Inventor/fields/SoMFColor.h>
#include <Inventor/fields/SoMFPlane.h>
#include <Inventor/fields/SoMFRotation.h>
#include <Inventor/fields/SoMFVec2f.h>
#include <Inventor/fields/SoMFVec2i32.h>
#include <Inventor/fields/SoMFVec2s.h>
#include <Inventor/fields/SoMFVec3f.h>
#include <Inventor/fields/SoMFVec4f.h>

/*
 * How the rows of the multiple-value fields are made of numbers, a column each: facts only. A row
 * view is a value view with its multiple-value field class, the texts of its components, and how
 * many of its columns show one.
 */

struct DvRealText
{
    static QString text(double number) { return DvFieldText::fromReal(number); }
    static double number(const QString& text)
    {
        return static_cast<double>(DvFieldText::toFloat(text));
    }
};

struct DvIntegerComponentText
{
    static QString text(double number) { return QString::number(static_cast<qint64>(number)); }
    static double number(const QString& text) { return text.toInt(); }
};

template <class View, class FieldType, class Text>
struct DvRowView : View, Text
{
    using Field = FieldType;
    static constexpr int shownColumns = std::tuple_size<typename View::Numbers>::value;
};

using DvVec2fRowView = DvRowView<DvVec2fView, SoMFVec2f, DvRealText>;
using DvVec3fRowView = DvRowView<DvVec3fView, SoMFVec3f, DvRealText>;
using DvVec4fRowView = DvRowView<DvVec4fView, SoMFVec4f, DvRealText>;
using DvVec2sRowView = DvRowView<DvVec2sView, SoMFVec2s, DvIntegerComponentText>;
using DvVec2i32RowView = DvRowView<DvVec2i32View, SoMFVec2i32, DvIntegerComponentText>;

/** Kept on purpose: of a plane's four columns only the first shows a text. */
struct DvPlaneRowView : DvRowView<DvPlaneView, SoMFPlane, DvRealText>
{
    static constexpr int shownColumns = 1;
};

/** Kept on purpose: of a rotation's four columns only the first shows a text. */
struct DvQuaternionRowView : DvRowView<DvQuaternionView, SoMFRotation, DvRealText>
{
    static constexpr int shownColumns = 1;
};

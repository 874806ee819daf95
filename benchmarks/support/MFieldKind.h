#pragma once

#include <Inventor/fields/SoMField.h>

#include <QByteArray>

#include <functional>
#include <memory>
#include <vector>

class DvMFieldWidget;

/** A type of multiple-value field that is measured: its editor, and how fields of it are filled. */
struct MFieldKind
{
    const char* name;
    int columns;
    bool hasSlider; ///< when a cell is edited
    std::function<std::unique_ptr<DvMFieldWidget>()> newEditor;
    const char* nodeType;
    const char* fieldName;
    /** Writes the value that stands for a number into a row. */
    std::function<void(SoMField& field, int row, int number)> setRow;

    /** What a measure prints: the work, the type, and the time that it took in seconds. */
    QByteArray measure(const QString& work, double seconds) const;

    /** Single numbers, vectors, strings. */
    static std::vector<MFieldKind> all();
};

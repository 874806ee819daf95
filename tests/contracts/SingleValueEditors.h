#pragma once

#include <QList>

#include <memory>

class DvSFieldWidget;

/** One of the single-value editors, and the field of SoEveryField that it is tested on. */
struct SingleValueEditor
{
    const char* name;
    std::unique_ptr<DvSFieldWidget> (*make)();
    const char* field;
};

/** All of them; the editor of any field stands here twice, for a number and for three. */
QList<SingleValueEditor> singleValueEditors();

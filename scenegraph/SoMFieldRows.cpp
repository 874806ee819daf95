#include "scenegraph/SoMFieldRows.h"

#include "scenegraph/SoFieldText.h"

#include <Inventor/errors/SoDebugError.h>
#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/fields/SoMFEngine.h>
#include <Inventor/fields/SoMFEnum.h>
#include <Inventor/fields/SoMFName.h>
#include <Inventor/fields/SoMFNode.h>
#include <Inventor/fields/SoMFPath.h>
#include <Inventor/fields/SoMFString.h>

#include <algorithm>
#include <limits>

namespace {

SbString described(const SoMField* field)
{
    SbName name;
    const SoFieldContainer* container = field->getContainer();
    if (container)
        container->getFieldName(field, name);
    SbString text(field->getTypeId().getName().getString());
    if (name.getLength() > 0)
        text += SbString(" \"") + name.getString() + "\"";
    return text;
}

SbBool refuse(const char* operation, const SoMField* field, int start, int count, int num)
{
    const SbString source = SbString("SoMFieldRows::") + operation;
    SoDebugError::postWarning(source.getString(),
                              "%s has %d rows: nothing done for %d rows from row %d on",
                              described(field).getString(), num, count, start);
    return FALSE;
}

/** Whether the rows exist. getNum() evaluates a connection, which none of the changes does. */
bool hasRows(const char* operation, const SoMField* field, int start, int count)
{
    const int num = field->getNum();
    if (start >= 0 && count >= 0 && start <= num && count <= num - start)
        return true;
    return refuse(operation, field, start, count, num);
}

bool canInsert(const char* operation, const SoMField* field, int start, int count)
{
    const int num = field->getNum();
    const int room = std::numeric_limits<int>::max() - num;
    if (start >= 0 && start <= num && count >= 0 && count <= room)
        return true;
    return refuse(operation, field, start, count, num);
}

/** Strings, and objects that are null: new rows of these are in order as Coin makes them. */
bool makesEmptyRows(const SoMField* field)
{
    const SoType type = field->getTypeId();
    return type.isDerivedFrom(SoMFString::getClassTypeId()) ||
           type.isDerivedFrom(SoMFName::getClassTypeId()) ||
           type.isDerivedFrom(SoMFNode::getClassTypeId()) ||
           type.isDerivedFrom(SoMFPath::getClassTypeId()) ||
           type.isDerivedFrom(SoMFEngine::getClassTypeId());
}

void setToZero(SoMField* field, int row)
{
    // As many numbers as the longest value has; a shorter one leaves the rest unread.
    static const char* const zeros = "0 0 0 0  0 0 0 0  0 0 0 0  0 0 0 0";
    // An enumeration reads names only, and may have none for zero.
    if (field->isOfType(SoMFEnum::getClassTypeId()))
        static_cast<SoMFEnum*>(field)->set1Value(row, 0);
    else
        SoFieldText::set1(field, row, zeros);
}

/**
 * Coin fills a new row with a copy of the old row at its place, and leaves it undefined where the
 * field had none. So rows are inserted in steps that find something to copy, each at least doubling
 * what the next one can use.
 */
void insertCopies(SoMField* field, int start, int count)
{
    int num = field->getNum();
    const int end = num + count;
    if (num == 0) {
        field->insertSpace(0, 1);
        setToZero(field, 0);
        num = 1;
    }
    const int from = std::min(start, num - 1);
    while (num < end) {
        const int step = std::min(end - num, num - from);
        field->insertSpace(from, step);
        num += step;
    }
}

void insertDefined(SoMField* field, int start, int count)
{
    if (count <= field->getNum() - start || makesEmptyRows(field)) {
        field->insertSpace(start, count);
        return;
    }
    const SbBool wasEnabled = field->enableNotify(FALSE);
    insertCopies(field, start, count);
    field->enableNotify(wasEnabled);
    field->touch();
}

/** Whether the rows could be inserted where the operation wants them. */
bool inserted(const char* operation, SoMField* field, int start, int count)
{
    if (!canInsert(operation, field, start, count))
        return false;
    if (count > 0)
        insertDefined(field, start, count);
    return true;
}

} // namespace

SbBool SoMFieldRows::get1(SoMField* field, int row, SbString& text)
{
    if (!hasRows("get1", field, row, 1))
        return FALSE;
    SoFieldText::get1(field, row, text);
    return TRUE;
}

SbBool SoMFieldRows::set1(SoMField* field, int row, const SbString& text)
{
    return hasRows("set1", field, row, 1) && SoFieldText::set1(field, row, text);
}

SbBool SoMFieldRows::insertSpace(SoMField* field, int start, int count)
{
    return inserted("insertSpace", field, start, count);
}

SbBool SoMFieldRows::deleteValues(SoMField* field, int start, int count)
{
    if (!hasRows("deleteValues", field, start, count))
        return FALSE;
    if (count > 0)
        field->deleteValues(start, count);
    return TRUE;
}

SbBool SoMFieldRows::insertEmpty(SoMField* field, int start, int count)
{
    if (!inserted("insertEmpty", field, start, count))
        return FALSE;
    for (int row = start; row < start + count; ++row)
        field->set1(row, "\"\"");
    return TRUE;
}

SbBool SoMFieldRows::readTexts(SoMField* field, int start, int count, SbString* texts)
{
    if (!hasRows("readTexts", field, start, count))
        return FALSE;
    for (int i = 0; i < count; ++i)
        SoFieldText::get1(field, start + i, texts[i]);
    return TRUE;
}

SbBool SoMFieldRows::insertTexts(SoMField* field, int start, int count, const SbString* texts)
{
    if (!inserted("insertTexts", field, start, count))
        return FALSE;
    for (int i = 0; i < count; ++i)
        SoFieldText::set1(field, start + i, texts[i]);
    return TRUE;
}

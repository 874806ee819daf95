#include "FieldEditors/DvNameValidator.h"

#include "scenegraph/SoFieldText.h"

QValidator::State DvNameValidator::validate(QString& text, int&) const
{
    return text.toUtf8().size() <= SoFieldText::longestName ? Acceptable : Invalid;
}

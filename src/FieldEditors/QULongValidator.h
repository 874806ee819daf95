#pragma once

#include "FieldEditors/QUIntValidator.h"

/** Kept on purpose: despite its name no wider than QUIntValidator; both read 32 bits. */
class QULongValidator final : public QUIntValidator
{
    Q_OBJECT

public:
    using QUIntValidator::QUIntValidator;
};

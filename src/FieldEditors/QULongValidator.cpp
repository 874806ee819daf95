#include "FieldEditors/QULongValidator.h"

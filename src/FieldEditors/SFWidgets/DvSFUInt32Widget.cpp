#include "FieldEditors/SFWidgets/DvSFUInt32Widget.h"

DvSFUInt32Widget::DvSFUInt32Widget() : DvSFSliderWidget(QStringLiteral("DvSFUInt32Widget")) {}

#include "FieldEditors/SFWidgets/DvSFInt32Widget.h"

DvSFInt32Widget::DvSFInt32Widget() : DvSFSliderWidget(QStringLiteral("DvSFInt32Widget")) {}

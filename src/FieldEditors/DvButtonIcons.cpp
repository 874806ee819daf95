#include "FieldEditors/DvButtonIcons.h"

#include "FieldEditors/icons/addRow.xpm"
#include "FieldEditors/icons/deleteRow.xpm"
#include "FieldEditors/icons/edit.xpm"
#include "FieldEditors/icons/ignore.xpm"
#include "FieldEditors/icons/rowDown.xpm"
#include "FieldEditors/icons/rowUp.xpm"
#include "FieldEditors/icons/setToDefault.xpm"

#include <QPixmap>

namespace {

/** The icon of a drawing, made when it is first asked for: a pixmap needs the application. */
template <const auto& drawing>
const QIcon& iconOf()
{
    static const QIcon icon{QPixmap(drawing)};
    return icon;
}

} // namespace

const QIcon& DvButtonIcons::setToDefault()
{
    return iconOf<setToDefault_xpm>();
}

const QIcon& DvButtonIcons::ignore()
{
    return iconOf<ignore_xpm>();
}

const QIcon& DvButtonIcons::edit()
{
    return iconOf<edit_xpm>();
}

const QIcon& DvButtonIcons::addRow()
{
    return iconOf<addRow_xpm>();
}

const QIcon& DvButtonIcons::deleteRow()
{
    return iconOf<deleteRow_xpm>();
}

const QIcon& DvButtonIcons::rowUp()
{
    return iconOf<rowUp_xpm>();
}

const QIcon& DvButtonIcons::rowDown()
{
    return iconOf<rowDown_xpm>();
}

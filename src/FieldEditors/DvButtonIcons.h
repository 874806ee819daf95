#pragma once

#include <QIcon>

/** The icons that the field editors' buttons share; drawn once. */
class DvButtonIcons
{
public:
    static const QIcon& setToDefault();
    static const QIcon& ignore();
    /** Of the buttons that pop up an editor. */
    static const QIcon& edit();
    static const QIcon& addRow();
    static const QIcon& deleteRow();
    static const QIcon& rowUp();
    static const QIcon& rowDown();
};

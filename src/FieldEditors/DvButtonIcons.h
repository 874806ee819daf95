#pragma once

#include <QIcon>

/** The two icons that every field editor's buttons share; drawn once. */
class DvButtonIcons
{
public:
    static const QIcon& setToDefault();
    static const QIcon& ignore();
};

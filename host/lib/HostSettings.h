#pragma once

#include "TavrikHostExport.h"

#include <QSettings>

/** The user's settings of the host, in one file whatever program the window runs in. */
class TAVRIKHOST_EXPORT HostSettings : public QSettings
{
public:
    HostSettings();
};

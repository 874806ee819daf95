#include "lib/HostSettings.h"

HostSettings::HostSettings()
    : QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Tavrik"),
                QStringLiteral("tavrik"))
{}

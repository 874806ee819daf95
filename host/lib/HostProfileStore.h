#pragma once

#include "TavrikHostExport.h"

#include "lib/HostProfileList.h"

/** The profiles in the user's settings, from one run to the next. */
namespace HostProfileStore {

/** Adds what is stored to a new list, and answers the profile that was active last. */
TAVRIKHOST_EXPORT HostProfile& read(HostProfileList& profiles);
TAVRIKHOST_EXPORT void write(const HostProfileList& profiles, const TvkProfile* active);

} // namespace HostProfileStore

#pragma once

#include "TavrikExtenderAPIExport.h"

#include <Inventor/SbString.h>

/** A named set of extensions with their settings, of which one is in force at a time. */
class TAVRIKEXTENDERAPI_EXPORT TvkProfile
{
public:
    explicit TvkProfile(const SbString& name);
    virtual ~TvkProfile();

    SbString getName() const { return m_name; }

protected:
    SbString m_name;
};

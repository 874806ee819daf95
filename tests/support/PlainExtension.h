#pragma once

#include <TvkExtension.h>

/** An extension that does what its base class does, and nothing else. */
class PlainExtension : public TvkExtension
{
public:
    void createWidgets() override {}
    void releaseWidgets() override {}
};

#pragma once

#include "TavrikSceneGraphExport.h"

#include <chrono>

/**
 * Measures seconds since it was made or last reset, on a clock that never jumps: setting the
 * computer's time changes no measurement.
 */
class TAVRIKSCENEGRAPH_EXPORT SbElapsedTime
{
public:
    SbElapsedTime();

    void reset();
    /** In seconds. */
    double getElapsed() const;

private:
    std::chrono::steady_clock::time_point m_start;
};

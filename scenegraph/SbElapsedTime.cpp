#include "scenegraph/SbElapsedTime.h"

SbElapsedTime::SbElapsedTime() : m_start(std::chrono::steady_clock::now()) {}

void SbElapsedTime::reset()
{
    m_start = std::chrono::steady_clock::now();
}

double SbElapsedTime::getElapsed() const
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count();
}

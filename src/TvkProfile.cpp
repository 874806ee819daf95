#include "TvkProfile.h"

TvkProfile::TvkProfile(const SbString& name) : m_name(name) {}

TvkProfile::~TvkProfile() = default;

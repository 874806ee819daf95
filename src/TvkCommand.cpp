#include "TvkCommand.h"

TvkCommand::~TvkCommand() = default;

#pragma once

#include <QString>

#include <functional>

/** The text of the cell in a row and a column. */
using CellText = std::function<QString(int row, int column)>;

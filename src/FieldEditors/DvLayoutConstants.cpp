#include "FieldEditors/DvLayoutConstants.h"

#include <cstring>
#include <map>
#include <string>

namespace {

const DvLayoutConstants::Row s_table[] = {
    {"frameLineWidth", 0},
    {"labelLineWidth", 0},
    {"labelPointSize", 10},
    {"labelHeight", 20},
    {"buttonWidth", 20},
    {"buttonHeight", 20},
    {"PopupFrameWidth", 260},
    {"PopupFrameHeight", 100},
    {"PopupLayoutMargin", 6},
    {"PopupLayoutSpacing", 8},
    {"SFieldLayoutMargin", 4},
    {"SFieldLayoutSpacing", 6},
    {"SFieldEditLayoutMargin", 0},
    {"SFieldEditLayoutSpacing", 0},
    {"SFButtonLayoutMargin", 2},
    {"SFButtonLayoutSpacing", 0},
    {"SFEditionAreaLayMargin", 0},
    {"SFEditionAreaLaySpacing", 2},
    {"SFComponentHeight", 18},
    {"SFBoolWidth", 16},
    {"SFColorSpacing", 6},
    {"SFColorMargin", 0},
    {"MFAccessMoveSpacerHeight", 0},
    {"MFTableMinHeightWin", 43},
    {"SFColorInterSpacing", 2},
    {"SFColorDispWidth", 20},
    {"SFVecLineHeight", 16},
    {"SFVecLabelHeight", 14},
    {"SF4fBoxVSpacing", 4},
    {"SF4fBoxHSpacing", 4},
    {"SF4fBoxHMargin", 2},
    {"SF3fBoxVSpacing", 4},
    {"SF3fBoxHSpacing", 20},
    {"SF3fBoxHMargin", 2},
    {"SF2BoxHSpacing", 25},
    {"SF2BoxHMargin", 2},
    {"SF2BoxVSpacing", 4},
    {"MFGlobalLayoutSpacing", 2},
    // Kept on purpose, letter for letter: the widgets ask for the name as it stands here.
    {"MFGlobalLayoutMarging", 6},
    {"MFGlobalButtonsLayoutMargin", 0},
    {"MFGlobalButtonsLayoutSpacing", 5},
    {"MFButtonLayoutMargin", 0},
    {"MFButtonLayoutSpacing", 0},
    {"MFAccessWidth", 60},
    {"MFManageAccessSpacerWidth", 0},
    {"MFManageAccessSpacerHeight", 0},
    {"MFAccessMoveSpacerWidth", 0},
    {"MFTableMinHeightUnix", 46},
};
static_assert(sizeof(s_table) / sizeof(s_table[0]) == DvLayoutConstants::rowCount);

int lookUp(const char* name)
{
    for (const DvLayoutConstants::Row& row : s_table) {
        if (std::strcmp(row.name, name) == 0)
            return row.value;
    }
    return 0;
}

} // namespace

int DvLayoutConstants::value(const char* name)
{
    static std::map<std::string, int> s_cache;
    const auto cached = s_cache.find(name);
    if (cached != s_cache.end())
        return cached->second;
    return s_cache.emplace(name, lookUp(name)).first->second;
}

const DvLayoutConstants::Row* DvLayoutConstants::table()
{
    return s_table;
}

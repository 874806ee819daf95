#include "scenegraph/SoPreferences.h"

#include <Inventor/C/tidbits.h>
#include <Inventor/errors/SoDebugError.h>

#include <cctype>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <set>
#include <string>

namespace {

const char* const blanks = " \t\r";

std::string trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/** Empty for a variable that is absent or no absolute path, which counts for nothing. */
std::string directoryFromEnvironment(const char* variable)
{
    const char* value = coin_getenv(variable);
    return value && *value == '/' ? value : "";
}

std::string preferenceFile()
{
    const char* named = coin_getenv("TAVRIK_PREFERENCES");
    if (named && *named)
        return named;
    const std::string configuration = directoryFromEnvironment("XDG_CONFIG_HOME");
    if (!configuration.empty())
        return configuration + "/tavrik/preferences";
    const std::string home = directoryFromEnvironment("HOME");
    return home.empty() ? "" : home + "/.config/tavrik/preferences";
}

struct Line
{
    std::string name;
    std::optional<std::string> value; ///< none on a malformed line
};

/** The name and the value of a trimmed line that is neither empty nor a comment. */
Line parsed(const std::string& text)
{
    const auto nameEnd = text.find_first_of(" \t=");
    Line line{text.substr(0, nameEnd), std::nullopt};
    if (nameEnd == std::string::npos || nameEnd == 0)
        return line;
    const std::string rest = trimmed(text.substr(nameEnd));
    line.value = rest.front() == '=' ? trimmed(rest.substr(1)) : rest;
    return line;
}

void reportMalformed(const std::string& file, int number, const std::string& text)
{
    // The file is read again and again, the user is told once.
    static std::set<std::string> reported;
    const std::string place = file + ":" + std::to_string(number);
    if (reported.insert(place + ":" + text).second)
        SoDebugError::postWarning("SoPreferences", "%s: \"%s\" is no NAME value line, skipped",
                                  place.c_str(), text.c_str());
}

void dropByteOrderMark(std::string& text)
{
    if (text.compare(0, 3, "\xef\xbb\xbf") == 0)
        text.erase(0, 3);
}

std::optional<std::string> valueInFile(const std::string& name)
{
    const std::string file = preferenceFile();
    std::ifstream stream(file);
    std::optional<std::string> found;
    std::string text;
    for (int number = 1; std::getline(stream, text); ++number) {
        if (number == 1)
            dropByteOrderMark(text);
        text = trimmed(text);
        if (text.empty() || text.front() == '#')
            continue;
        const Line line = parsed(text);
        if (!line.value)
            reportMalformed(file, number, text);
        else if (line.name == name)
            found = line.value;
    }
    return found;
}

std::optional<std::string> valueOf(const SbString& name)
{
    if (const char* value = coin_getenv(name.getString()))
        return value;
    return valueInFile(name.getString());
}

bool isTrue(std::string text)
{
    for (char& c : text)
        c = char(std::tolower(static_cast<unsigned char>(c)));
    if (text == "true")
        return true;
    char* end = nullptr;
    const long number = std::strtol(text.c_str(), &end, 10);
    return end != text.c_str() && *end == '\0' && number != 0;
}

} // namespace

SbString SoPreferences::getString(const SbString& name, const SbString& defaultValue)
{
    const auto value = valueOf(name);
    return value ? SbString(value->c_str()) : defaultValue;
}

SbBool SoPreferences::getBool(const SbString& name, SbBool defaultValue)
{
    const auto value = valueOf(name);
    return value ? isTrue(trimmed(*value)) : defaultValue;
}

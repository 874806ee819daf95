#include "scenegraph/SoQuotedText.h"

#include <string>
#include <string_view>

namespace {

// How a multiple-value field separates its texts.
const std::string_view opening = "[ ";
const std::string_view separator = ",\n    ";
const std::string_view closing = " ]";

bool startsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

/** Whether the list goes on with its next text, or ends. */
bool isBetweenTexts(std::string_view rest)
{
    return rest == closing ||
           (startsWith(rest, separator) && startsWith(rest.substr(separator.size()), "\""));
}

/**
 * The length of the text that a list goes on with, quotation marks included; 0 when there is none.
 * A backslash before a quotation mark escapes it, or is the last character of the text: what comes
 * next tells, since a text cannot hold a quotation mark without a backslash directly before it.
 */
size_t lengthOfText(std::string_view list)
{
    if (!startsWith(list, "\""))
        return 0;
    for (size_t i = 1; i < list.size(); ++i) {
        if (list[i] != '"')
            continue;
        const bool isEnd = isBetweenTexts(list.substr(i + 1));
        if (isEnd || list[i - 1] != '\\')
            return isEnd ? i + 1 : 0;
    }
    return 0;
}

bool readRange(std::string_view text, SbString& value)
{
    if (text.size() < 2 || text.front() != '"' || text.back() != '"')
        return false;
    text = text.substr(1, text.size() - 2);
    std::string plain;
    plain.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        const bool isEscape = text[i] == '\\' && i + 1 < text.size() && text[i + 1] == '"';
        if (isEscape)
            ++i;
        else if (text[i] == '"')
            return false;
        plain += text[i];
    }
    value = plain.c_str();
    return true;
}

std::string_view viewOf(const SbString& text)
{
    return {text.getString(), size_t(text.getLength())};
}

} // namespace

bool SoQuotedText::read(const SbString& text, SbString& value)
{
    return readRange(viewOf(text), value);
}

bool SoQuotedText::readAll(const SbString& text, std::vector<SbString>& values)
{
    std::string_view rest = viewOf(text);
    values.assign(1, SbString());
    if (!startsWith(rest, opening))
        return read(text, values.front());
    rest.remove_prefix(opening.size());
    values.clear();
    while (const size_t length = lengthOfText(rest)) {
        values.emplace_back();
        if (!readRange(rest.substr(0, length), values.back()))
            return false;
        rest.remove_prefix(length);
        if (rest == closing)
            return true;
        rest.remove_prefix(separator.size());
    }
    return false;
}

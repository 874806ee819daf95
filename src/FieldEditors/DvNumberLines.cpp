#include "FieldEditors/DvNumberLines.h"

#include "FieldEditors/DvFieldText.h"
#include "FieldEditors/DvLineEdit.h"

#include <algorithm>

void DvNumberLines::show(std::size_t index, double number)
{
    m_lines[index].edit->showText(DvFieldText::fromReal(number));
    m_lines[index].isEntered = false;
}

void DvNumberLines::enter(std::size_t index, double number)
{
    Line& line = m_lines[index];
    line.edit->showText(DvFieldText::fromReal(number));
    line.edit->setModified(true);
    line.entered = number;
    line.isEntered = true;
}

double DvNumberLines::number(std::size_t index, double component) const
{
    const Line& line = m_lines[index];
    if (line.isEntered && line.edit->text() == line.edit->shownText())
        return line.entered;
    return line.edit->showsFieldValue()
               ? component
               : static_cast<double>(DvFieldText::toFloat(line.edit->text()));
}

bool DvNumberLines::isModified() const
{
    return std::any_of(m_lines.begin(), m_lines.end(),
                       [](const Line& line) { return line.edit->isModified(); });
}

bool DvNumberLines::isHalfTyped() const
{
    return std::any_of(m_lines.begin(), m_lines.end(), [](const Line& line) {
        return line.edit->isModified() && !line.edit->hasAcceptableInput();
    });
}

void DvNumberLines::clearModified()
{
    for (Line& line : m_lines) {
        line.edit->setModified(false);
        line.isEntered = false;
    }
}

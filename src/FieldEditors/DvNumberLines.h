#pragma once

#include <QString>

#include <cstddef>
#include <vector>

class DvLineEdit;

/**
 * A group of lines that show one number each. A line that the user has not touched stands for the
 * field's own component, to the last bit, however it is rounded for showing.
 */
class DvNumberLines
{
public:
    /** The line belongs to its parent widget. */
    void add(DvLineEdit* line) { m_lines.push_back({line, 0.0, false}); }
    DvLineEdit& line(std::size_t index) const { return *m_lines[index].edit; }

    /** Shows the field's component: general notation, 6 significant digits. */
    void show(std::size_t index, double number);
    /** Enters a number as the user's, exact while its text stands. */
    void enter(std::size_t index, double number);
    /** The number that a line stands for, given the field's component; 0 for text that is none. */
    double number(std::size_t index, double component) const;

    bool isModified() const;
    /** Whether a line holds the beginning of a number, and no number yet. */
    bool isHalfTyped() const;
    void clearModified();

private:
    struct Line
    {
        DvLineEdit* edit;
        double entered;
        bool isEntered;
    };
    std::vector<Line> m_lines;
};

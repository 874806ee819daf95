#pragma once

/** Whoever has a slider for its values: told when the user has chosen one. */
class DvSliderOwner
{
public:
    /** The slider of a single-value editor commits: take its value. */
    virtual void commitSlider() = 0;
    /** Escape, or a line left with a text that is no number: the slider has reverted already. */
    virtual void revertSlider() = 0;
    /** The slider of a table cell commits. */
    virtual void commitSliderCell(int row, int column) = 0;

protected:
    ~DvSliderOwner() = default;
};

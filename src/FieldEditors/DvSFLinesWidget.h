#pragma once

#include "FieldEditors/DvNumberLines.h"
#include "FieldEditors/DvSFieldWidget.h"

#include <vector>

class DvLineEdit;
class QGridLayout;

/** What a group of labelled lines looks like: the names and texts that differ from type to type. */
struct DvLinesForm
{
    const char* boxName; ///< of the widget around the lines; null for none
    const char* layoutName;
    const char* labelName;
    const char* lineName;
    const char* verticalSpacing; ///< a layout constant, as the next two
    const char* horizontalSpacing;
    const char* margin;
    std::vector<const char*> labels; ///< one line for each
};

/**
 * A value shown as a column of labelled lines, one number each. A line that the user has not
 * touched stands for the field's own component, to the last bit, however it is rounded for showing.
 */
class DvSFLinesWidget : public DvSFieldWidget
{
    Q_OBJECT

public:
    DvSFLinesWidget(const QString& objectName, DvLinesForm form);
    ~DvSFLinesWidget() override;

    bool hasPendingEdit() const override;

protected:
    void buildEditor(QHBoxLayout& editLayout) override;
    void clearPendingEdit() override;

    void showNumber(std::size_t index, double number) { m_lines.show(index, number); }
    /** Enters a number as if the user had typed it. */
    void enterNumber(std::size_t index, double number) { m_lines.enter(index, number); }
    /** The number that a line stands for, given the field's component. */
    double number(std::size_t index, double component) const
    {
        return m_lines.number(index, component);
    }
    bool isTextBeingEdited() const { return false; }
    DvLineEdit& line(std::size_t index) const { return m_lines.line(index); }

private:
    void buildRow(QGridLayout& grid, int row);

    const DvLinesForm m_form;
    DvNumberLines m_lines;
};

#pragma once

#include "FieldEditors/DvSFieldWidget.h"

#include <vector>

class DvLineEdit;
class QGridLayout;

/** What a group of labelled lines looks like: the names and texts that differ from type to type. */
struct DvLinesForm
{
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
    DvSFLinesWidget(const QString& objectName, const DvLinesForm& form);
    ~DvSFLinesWidget() override;

    bool hasPendingEdit() const override;

protected:
    void buildEditor(QHBoxLayout& editLayout) override;
    void clearPendingEdit() override;

    void showNumber(std::size_t index, double number);
    /** The number that a line stands for, given the field's component. */
    double number(std::size_t index, double component) const;

private:
    void buildRow(QGridLayout& grid, int row);

    const DvLinesForm& m_form;
    std::vector<DvLineEdit*> m_lines;
};

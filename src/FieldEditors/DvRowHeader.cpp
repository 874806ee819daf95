#include "FieldEditors/DvRowHeader.h"

DvRowHeader::DvRowHeader(QWidget* parent) : QHeaderView(Qt::Vertical, parent)
{
    setSectionsClickable(true);
    setHighlightSections(true);
    // Sizes that follow the contents would ask for each of a million texts.
    setSectionResizeMode(QHeaderView::Fixed);
}

QSize DvRowHeader::sizeHint() const
{
    return count() > 0 ? sectionSizeFromContents(count() - 1) : QHeaderView::sizeHint();
}

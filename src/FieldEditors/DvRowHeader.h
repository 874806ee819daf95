#pragma once

#include <QHeaderView>

/** The row numbers of a table, as wide as the largest of them: Qt measures two hundred. */
class DvRowHeader final : public QHeaderView
{
    Q_OBJECT

public:
    explicit DvRowHeader(QWidget* parent);

    QSize sizeHint() const override;
};

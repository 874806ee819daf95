#pragma once

#include "FieldEditors/DvMFieldTable.h"
#include "FieldEditors/DvMFieldTableItemDelegate.h"

#include <QColor>
#include <QPointer>

/** Paints a cell filled with the colour of its row. */
class DvMFColorTableItemDelegate final : public DvMFieldTableItemDelegate
{
    Q_OBJECT

public:
    using DvMFieldTableItemDelegate::DvMFieldTableItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

class QColorDialog;

/** Takes the colour that the user has chosen for a row. */
class DvColorOwner
{
public:
    virtual void setColor(int row, const QColor& color) = 0;

protected:
    ~DvColorOwner() = default;
};

/** The table of a colour field: a click into the first column of a row opens the colour dialog. */
class DvMFColorTable final : public DvMFieldTable
{
    Q_OBJECT

public:
    /** Kept on purpose: without a name it has the base's default name. */
    DvMFColorTable(DvMFieldWidget& owner, DvColorOwner& colorOwner, QWidget* parent,
                   const char* name = nullptr);

    /** The colour that the three cells of a row make. */
    QColor rowColor(int row) const;
    /** Closes the colour dialog, if it is open, without a choice: its field is gone. */
    void closeDialog();

public slots:
    void getColorFromEditor(int row, int col);

private slots:
    void s_colorSelected(const QColor& color);

private:
    DvColorOwner& m_colorOwner;
    QPointer<QColorDialog> m_dialog; ///< while it is open
    int m_dialogRow = -1;
};

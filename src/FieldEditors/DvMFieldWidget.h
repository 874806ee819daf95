#pragma once

#include "FieldEditors/DvMFieldTableItemDelegate.h"
#include "FieldEditors/DvSliderOwner.h"
#include "FieldEditors/TvkFieldEditors.h"

#include <Inventor/fields/SoMField.h>

#include <cstring>
#include <vector>

class AccessButtonPrivate;
class DvMFieldTable;
class QHBoxLayout;
class QLabel;
class QPushButton;
class TvkCommand;

/** What the table of a multiple-value editor looks like: the facts that differ from type to type.
 */
struct DvTableForm
{
    const char* typeName;             ///< shown in the frame's label
    std::vector<const char*> headers; ///< one for each column
    int valueKind;                    ///< of the table's delegate
};

/**
 * The base of the multiple-value editors: a table with a row for each value, buttons that add,
 * delete and move rows, a spin box that leads to a row, and the default and ignore buttons.
 *
 * The table shows what cellText() answers when a cell is painted and stores nothing of the field,
 * so that a field of a million values is shown as quickly as one of a hundred. Changes of the
 * field's rows are commands; a cell is written by applyCell().
 */
class DvMFieldWidget : public TvkFieldEditors, protected DvSliderOwner
{
    Q_OBJECT

public:
    explicit DvMFieldWidget(DvTableForm form,
                            const QString& objectName = QStringLiteral("DvMFieldWidget"));
    ~DvMFieldWidget() override;

    void createWidgets() override;
    void setField(SoField* field) override;
    void refresh() override;

    // What a type says, in this order.
    /** Whether the type edits this field. */
    virtual bool accept(SoField* field) const;
    /** Gives the table its columns, header labels and value kind. */
    virtual void buildTable();
    /** The text of a cell; null for a cell that has none. */
    virtual QString cellText(int row, int column) const = 0;
    /**
     * A row's value, to be compared and nothing else: rows with the same one show the same texts.
     * Quicker to have than the texts.
     */
    virtual QByteArray rowValue(int row) const;
    /** Writes an edited cell. */
    virtual void applyCell(int row, int column, const QString& text) = 0;
    virtual void swapRows(int row1, int row2) = 0;

public slots:
    virtual void languageChange();
    virtual void setDefaultFieldValue();
    void ignoreButtonStateChanged();
    /** Enables the buttons or not: of a connection that is taken away Coin tells nobody. */
    void s_showWhetherEditable();
    /** Shows the row that the spin box, which counts from 1, says. */
    void s_accessRow(int number);

public:
    /** The field being edited; null when there is none. */
    SoMField* field() const { return m_field; }
    AccessButtonPrivate& accessBox() const { return *m_accessBox; }
    DvMFieldTable& table() const { return *m_table; }
    const DvTableForm& form() const { return m_form; }
    /** The owner of the sliders in the table's cells. */
    DvSliderOwner& sliderOwner() { return *this; }
    /** Why the rows cannot be edited now; empty when they can. */
    QString readOnlyReason() const;
    bool isReadOnly() const;
    /** The number of the field's rows, its connections evaluated; 0 without a field. */
    int rowCount() const;
    bool isRow(int row) const { return row >= 0 && row < rowCount(); }
    /** Hands a set-value command for a row that has been written to the host. */
    void pushSetValue(int row);

protected:
    /** Whether the widgets are there: made, and not deleted by a dock. */
    bool hasTable() const { return frame() && m_table; }
    template <class Field>
    Field* fieldAs() const
    {
        return static_cast<Field*>(m_field);
    }
    /** A value of plain numbers, byte for byte: what a rowValue() is made of. */
    template <class Value>
    static QByteArray bytesOf(const Value& value)
    {
        QByteArray bytes(static_cast<int>(sizeof value), Qt::Uninitialized);
        std::memcpy(bytes.data(), &value, sizeof value);
        return bytes;
    }
    QLabel* label();
    /** Makes the table; a type that needs another class of table makes its own. */
    virtual DvMFieldTable* newTable();
    /** Another field, not null, has been set. */
    virtual void fieldReplaced();
    /** The field has been taken away or has died. */
    virtual void fieldReleased();
    /** Adds a type's own button to the row below the table. */
    QHBoxLayout& manageButtonsLayout() const { return *m_manageButtonsLayout; }

private:
    void commitSlider() override;
    void revertSlider() override;
    void commitSliderCell(int row, int column) override;

    void buildFrame();
    void buildButtons();
    void connectTable();
    void showRowCount(int rows);

    const DvTableForm m_form;
    SoMField* m_field = nullptr; ///< not owned
    QLabel* m_label = nullptr;
    DvMFieldTable* m_table = nullptr;
    QHBoxLayout* m_manageButtonsLayout = nullptr;
    AccessButtonPrivate* m_accessBox = nullptr;
    QLabel* m_labelNumElement = nullptr;
    QPushButton* m_addButton = nullptr;
    QPushButton* m_deleteButton = nullptr;
    QPushButton* m_upButton = nullptr;
    QPushButton* m_downButton = nullptr;
    QPushButton* m_defaultButton = nullptr;
    QPushButton* m_ignoreButton = nullptr;
};

#pragma once

#include <QItemDelegate>
#include <QPersistentModelIndex>
#include <QPointer>

class DvMFieldWidget;
class DvSlider;
class QLineEdit;

/**
 * Paints the cells of a multiple-value field and makes their editors: a slider in the one column of
 * a number field, else a line with the validator of the value kind.
 *
 * Return, Tab and leaving commit an edited cell once; Escape drops it. A text that the validator
 * finds only intermediate shows in the cell and does not reach the field. Of a slider all this is
 * said of its line; its thumb commits as it moves.
 */
class DvMFieldTableItemDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    /** What a cell holds, and so the validator of its line. */
    enum ValueKind {
        TextKind,
        ShortKind,
        UShortKind,
        IntegerKind,
        UIntKind,
        Int32Kind,
        UInt32Kind,
        FloatKind,
        DoubleKind
    };

    DvMFieldTableItemDelegate(DvMFieldWidget& owner, QObject* parent);

    void setValueKind(int kind) { m_valueKind = kind; }
    int valueKind() const { return m_valueKind; }
    /** The range that the sliders of the integer kinds start with. */
    void setIntegerRange(int minimum, int maximum, bool bounded);
    /** The same for the real kinds. */
    void setRealRange(double minimum, double maximum, bool bounded);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

    /** Enters a text into a cell as if it had been typed; false where no such value can be. */
    bool enterText(int row, int column, const QString& text);

    /** Commits the open editor, if there is one, and closes it. */
    void finishOpenEditor();
    /** Closes the open editor, if there is one, without a commit. */
    void discardOpenEditor();
    /** Shows the cell's text in the open editor, unless the user has changed it meanwhile. */
    void refreshOpenEditor();
    /** The open editor; null when there is none. */
    QWidget* openEditor() const { return m_editor; }
    /** The row of the open editor; -1 when there is none. */
    int openRow() const { return m_editor ? m_index.row() : -1; }

    /** Gives a line the validator of the value kind; none for texts. */
    void setValidator(QLineEdit& line) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    DvMFieldWidget& owner() const { return m_owner; }
    /** Draws a cell's text, cut to what fits, in the middle of the cell. */
    void drawText(QPainter* painter, const QStyleOptionViewItem& option, const QString& text,
                  const QColor& color) const;

private slots:
    void s_focusChanged(QWidget* old, QWidget* now);

private:
    QWidget* newLine(QWidget* parent, const QModelIndex& index) const;
    DvSlider* newSlider(QWidget* parent, const QModelIndex& index) const;
    bool isOnlyColumnSlider(const QModelIndex& index) const;
    void commitText(int row, int column, const QString& text, bool isAcceptable) const;
    bool finishOnKey(int key);
    void finish(EndEditHint hint);

    DvMFieldWidget& m_owner;
    int m_valueKind = TextKind;
    int m_integerMaximum = 10;
    int m_integerMinimum = 0;
    double m_realMaximum = 10.0;
    double m_realMinimum = 0.0;
    bool m_bounded = false;
    mutable QPointer<QWidget> m_editor;    ///< the open one
    mutable QPersistentModelIndex m_index; ///< its cell
};

#pragma once

#include "tests/support/FieldTexts.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/SoEveryField.h"

#include "FieldEditors/DvMFieldTable.h"
#include "FieldEditors/DvMFieldTableItemDelegate.h"
#include "FieldEditors/DvMFieldWidget.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QtTest>

/**
 * One multiple-value editor on one field of a test node, in an active window of its own, before a
 * recording host. The node is referenced here; killNode() lets go of it.
 */
class TableRig
{
public:
    TableRig(DvMFieldWidget& editedWith, const char* fieldName) : editor(editedWith)
    {
        node->ref();
        field = fieldOf(*node, fieldName);
        auto* const layout = new QVBoxLayout(&window);
        other = new QLineEdit(&window);
        layout->addWidget(other);
        editor.createWidgets();
        layout->addWidget(editor.getWidget());
        // As wide as a dock: the editor is shown only later, and would get its smallest size.
        window.resize(480, 320);
        window.show();
        QApplication::setActiveWindow(&window);
        edit();
    }

    ~TableRig()
    {
        if (m_living) {
            editor.deactivate();
            if (QWidget* const widget = editor.getWidget())
                widget->setParent(nullptr);
        }
        killNode();
    }

    TableRig(const TableRig&) = delete;
    TableRig& operator=(const TableRig&) = delete;

    /** Gives the field to the editor and activates it, as a dock does. */
    void edit()
    {
        SoTypedObject object(field);
        editor.setEditedObject(&object);
        editor.activate();
        settle();
    }

    /** Goes on to another field, of this node or of any other. */
    void edit(SoMField& another)
    {
        field = &another;
        edit();
    }

    void killNode()
    {
        if (node)
            node->unref();
        node = nullptr;
        field = nullptr;
    }

    /** A node as new in place of the one that has died, and its field of that name. */
    void reviveNode(const char* fieldName)
    {
        node = new SoEveryField;
        node->ref();
        edit(*fieldOf(*node, fieldName));
    }

    static SoMField* fieldOf(SoEveryField& node, const char* fieldName)
    {
        return static_cast<SoMField*>(node.getField(fieldName));
    }

    template <class Widget>
    Widget* find(const char* objectName) const
    {
        return editor.getWidget()->findChild<Widget*>(QLatin1String(objectName));
    }

    DvMFieldTable& table() const { return editor.table(); }
    QSpinBox& accessBox() const { return *find<QSpinBox>("m_accessBox"); }
    void click(const char* button) const { find<QAbstractButton>(button)->click(); }

    /** The texts of the field's rows, a line each. */
    QList<QByteArray> rows() const
    {
        QList<QByteArray> texts = rowTextsOf(*field);
        for (QByteArray& text : texts)
            text = text.simplified();
        return texts;
    }

    /** The texts in a row's cells. */
    QString shownRow(int row) const
    {
        QStringList cells;
        for (int column = 0; column < table().columnCount(); ++column)
            cells << table().item(row, column)->text();
        return cells.join(QLatin1Char('|'));
    }

    /** All that the table shows, a piece a row. */
    QStringList shownRows() const
    {
        QStringList shown;
        for (int row = 0; row < table().rowCount(); ++row)
            shown << shownRow(row);
        return shown;
    }

    /** Opens the editor of a cell as the keyboard does; null where none opens. */
    QWidget* openCell(int row, int column) const
    {
        table().setFocus();
        table().setCurrentCell(row, column);
        QTest::keyClick(&table(), Qt::Key_F2);
        QWidget* const opened = table().delegate().openEditor();
        return opened && opened->isVisible() ? opened : nullptr;
    }

    /** The line of the open editor, alone or in a slider. */
    QLineEdit* openLine() const
    {
        QWidget* const opened = table().delegate().openEditor();
        if (auto* const line = qobject_cast<QLineEdit*>(opened))
            return line;
        return opened ? opened->findChild<QLineEdit*>(QStringLiteral("lineEdit")) : nullptr;
    }

    /** Types into a cell, without an end. */
    void type(int row, int column, const QString& typed) const
    {
        openCell(row, column);
        QLineEdit* const line = openLine();
        line->setFocus();
        line->selectAll();
        if (typed.isEmpty())
            QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, typed);
    }

    void enter(int row, int column, const QString& typed) const
    {
        type(row, column, typed);
        QTest::keyClick(openLine(), Qt::Key_Return);
        settle();
    }

    /** The user goes on to another widget of the window. */
    void leave() const
    {
        QTest::mouseClick(other, Qt::LeftButton);
        other->setFocus();
        settle();
    }

    static void runSensors() { SoDB::getSensorManager()->processDelayQueue(TRUE); }
    /** What Qt has put off: the deletion of closed editors, and layouts. */
    static void settle()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    }

    RecordingHost host;
    DvMFieldWidget& editor;
    SoEveryField* node = new SoEveryField;
    SoMField* field = nullptr;
    QWidget window;
    QLineEdit* other = nullptr;

private:
    const QPointer<DvMFieldWidget> m_living{&editor}; ///< a test may let the editor die
};

#pragma once

#include "tests/support/RecordingHost.h"
#include "tests/support/SoEveryField.h"

#include "FieldEditors/DvSFieldWidget.h"

#include <QApplication>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

/**
 * One editor on one field of a test node, in an active window of its own, before a recording host.
 * The node is referenced here; killNode() lets go of it.
 */
class EditorRig
{
public:
    EditorRig(DvSFieldWidget& editedWith, const char* fieldName) : editor(editedWith)
    {
        node->ref();
        field = node->getField(fieldName);
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

    ~EditorRig()
    {
        editor.deactivate();
        if (QWidget* const widget = editor.getWidget())
            widget->setParent(nullptr);
        killNode();
    }

    EditorRig(const EditorRig&) = delete;
    EditorRig& operator=(const EditorRig&) = delete;

    /** Gives the field to the editor and activates it, as a dock does. */
    void edit()
    {
        SoTypedObject object(field);
        editor.setEditedObject(&object);
        editor.activate();
        // Some editors get other widgets with each field.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    }

    /** Goes on to another field, of this node or of any other. */
    void edit(SoField& another)
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

    template <class Widget>
    Widget* find(const char* objectName, int index = 0) const
    {
        const auto found = editor.getWidget()->findChildren<Widget*>(QLatin1String(objectName));
        return found.value(index);
    }

    QString text() const
    {
        SbString value;
        field->get(value);
        return QString::fromUtf8(value.getString());
    }

    /** Replaces a line's text as a user does: click, select all, type. */
    static void type(QLineEdit* line, const QString& typed)
    {
        QTest::mouseClick(line, Qt::LeftButton);
        line->setFocus();
        line->selectAll();
        if (typed.isEmpty())
            QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, typed);
    }

    /** The user goes on to another widget of the window. */
    void leave() const
    {
        QTest::mouseClick(other, Qt::LeftButton);
        other->setFocus();
    }

    static void runSensors() { SoDB::getSensorManager()->processDelayQueue(TRUE); }

    RecordingHost host;
    DvSFieldWidget& editor;
    SoEveryField* node = new SoEveryField;
    SoField* field = nullptr;
    QWidget window;
    QLineEdit* other = nullptr;
};

#include "tests/contracts/EditorRows.h"
#include "tests/support/EditorRig.h"
#include "tests/support/FieldBits.h"
#include "tests/support/TestMain.h"
#include "tests/support/WheelTurn.h"

#include <Inventor/fields/SoMFFloat.h>

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>

#include <algorithm>

/** What all single-value editors have in common, one row an editor. */
class tst_SingleValueEditorContract : public QObject
{
    Q_OBJECT

private:
    static const std::vector<EditorRow>& rows()
    {
        static const std::vector<EditorRow> s_rows = allRows();
        return s_rows;
    }

    static std::vector<EditorRow> allRows()
    {
        std::vector<EditorRow> all = numberEditorRows();
        const std::vector<EditorRow> texts = textEditorRows();
        all.insert(all.end(), texts.begin(), texts.end());
        return all;
    }

    static void addRows()
    {
        QTest::addColumn<int>("row");
        int number = 0;
        for (const EditorRow& row : rows())
            QTest::newRow(row.name) << number++;
    }

    /** One row for each thing that can be begun in each editor. */
    static void addBeginnings(bool revertingOnly)
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("beginning");
        int number = 0;
        for (const EditorRow& row : rows()) {
            int beginning = 0;
            for (const EditorRow::Beginning& begun : row.beginnings) {
                if (begun.escapeReverts || !revertingOnly) {
                    const QByteArray name = QByteArray(row.name) + ", " + begun.name;
                    QTest::newRow(name.constData()) << number << beginning;
                }
                ++beginning;
            }
            ++number;
        }
    }

    static const EditorRow& fetchRow()
    {
        QFETCH(int, row);
        return rows()[static_cast<std::size_t>(row)];
    }

    static const EditorRow::Beginning& fetchBeginning()
    {
        QFETCH(int, beginning);
        return fetchRow().beginnings[static_cast<std::size_t>(beginning)];
    }

    /** The editor's controls that the Tab key goes to, those of closed pop-ups left out. */
    static QList<QWidget*> tabStopsOf(const EditorRig& rig)
    {
        QList<QWidget*> stops;
        for (QWidget* widget : rig.editor.getWidget()->findChildren<QWidget*>()) {
            if (widget->isVisible() && !widget->focusProxy() &&
                (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus &&
                !qobject_cast<QAbstractSpinBox*>(widget->parentWidget()))
                stops << widget;
        }
        return stops;
    }

    static QStringList namesOf(const QList<QWidget*>& widgets)
    {
        QStringList names;
        for (const QWidget* widget : widgets)
            names << QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') +
                         widget->accessibleName();
        return names;
    }

    /** Down a column of controls, then on to what stands right of it. */
    static bool readsBefore(const QWidget* left, const QWidget* right)
    {
        const QRect a(left->mapToGlobal(QPoint(0, 0)), left->size());
        const QRect b(right->mapToGlobal(QPoint(0, 0)), right->size());
        const bool inOneColumn = a.left() <= b.right() && b.left() <= a.right();
        return inOneColumn ? a.top() < b.top() : a.left() < b.left();
    }

    /** Goes through the whole editor with the Tab key; answers where it has been. */
    static QList<QWidget*> tabThrough(const EditorRig& rig)
    {
        QList<QWidget*> visited;
        rig.other->setFocus();
        for (int i = 0; i < 30; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QWidget* const now = QApplication::focusWidget();
            if (!rig.editor.getWidget()->isAncestorOf(now))
                break;
            visited << now;
        }
        return visited;
    }

    static QString textInFocus()
    {
        if (const auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget()))
            return line->text();
        const auto* box = qobject_cast<QAbstractSpinBox*>(QApplication::focusWidget());
        return box ? box->text() : QString();
    }

    /** QTest's own warns of widgets that are disabled. */
    static void releaseOver(QWidget& widget)
    {
        const QPoint middle = widget.rect().center();
        QMouseEvent event(QEvent::MouseButtonRelease, middle, widget.mapToGlobal(middle),
                          Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void tellsWhoItIsAndWhatItHandles_data() { addRows(); }
    void tellsWhoItIsAndWhatItHandles()
    {
        const EditorRow& r = fetchRow();
        const auto editor = r.make();
        QCOMPARE(editor->objectName(), QString(r.name));
        QCOMPARE(editor->metaObject()->className(), r.name);
        QCOMPARE(editor->getName().getString(), r.name);
        QVERIFY(editor->getHandledType() == r.handledType());
        EditorRig rig(*editor, r.field);
        QCOMPARE(rig.find<QLabel>("m_label")->text(),
                 QStringLiteral("<p align=\"center\">%1</p>").arg(QLatin1String(r.label)));
    }

    void aFieldOfAnotherTypeIsNotTaken_data() { addRows(); }
    void aFieldOfAnotherTypeIsNotTaken()
    {
        const EditorRow& r = fetchRow();
        RecordingHost host;
        const auto editor = r.make();
        editor->createWidgets();
        SoMFFloat numbers;
        numbers.setValue(2.5F);
        SoTypedObject object(&numbers);
        editor->setEditedObject(&object);
        editor->activate();
        QVERIFY(!editor->getWidget()->isVisible());
        editor->setCommandValue();
        editor->deactivate();
        QCOMPARE(numbers.getNum(), 1);
        QCOMPARE(numbers[0], 2.5F);
        QCOMPARE(host.services.count(), 0);
    }

    void showsTheFieldAndPushesNothing_data() { addRows(); }
    void showsTheFieldAndPushesNothing()
    {
        const EditorRow& r = fetchRow();
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        const QString before = rig.text();
        QCOMPARE(r.shown(rig), QString(r.shownAtFirst));
        editor->refresh();
        rig.leave();
        EditorRig::runSensors();
        QCOMPARE(rig.text(), before);
        QCOMPARE(rig.host.services.count(), 0);
        QVERIFY(!editor->hasPendingEdit());
    }

    void anOutsideChangeIsShown_data() { addRows(); }
    void anOutsideChangeIsShown()
    {
        const EditorRow& r = fetchRow();
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        QVERIFY(rig.field->set(r.outside));
        const QString outside = rig.text();
        EditorRig::runSensors();
        QCOMPARE(r.shown(rig), QString(r.shownOutside));
        QCOMPARE(rig.text(), outside);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void visitingEveryControlChangesNoBit_data() { addRows(); }
    void visitingEveryControlChangesNoBit()
    {
        const EditorRow& r = fetchRow();
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        QVERIFY(rig.field->set(r.rough));
        const QByteArray before = bitsOf(*rig.field);
        EditorRig::runSensors();
        tabThrough(rig);
        rig.leave();
        EditorRig::runSensors();
        editor->deactivate();
        QCOMPARE(bitsOf(*rig.field), before);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void oneActionMakesOneCommandThatIsUndoneAndRedone_data() { addRows(); }
    void oneActionMakesOneCommandThatIsUndoneAndRedone()
    {
        const EditorRow& r = fetchRow();
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        if (!r.act) {
            QVERIFY(tabStopsOf(rig).isEmpty()); // a type that is only shown
            return;
        }
        r.act(rig);
        QCOMPARE(rig.text().simplified(), QString(r.afterAct));
        EditorRig::runSensors();
        rig.leave();
        EditorRig::runSensors();
        QCOMPARE(rig.host.services.count(), 1);
        QCOMPARE(rig.host.services.at(0).getField(), rig.field);
        // Without a text of before, undoing keeps the new value.
        rig.host.services.undo(0);
        QCOMPARE(rig.text().simplified(), QString(r.afterUndo));
        rig.host.services.redo(0);
        QCOMPARE(rig.text().simplified(), QString(r.afterAct));
    }

    void deactivatingTwiceAndReleasingAtAnyTimeDoNoHarm_data() { addRows(); }
    void deactivatingTwiceAndReleasingAtAnyTimeDoNoHarm()
    {
        const EditorRow& r = fetchRow();
        r.make()->releaseWidgets();
        const auto editor = r.make();
        editor->deactivate();
        EditorRig rig(*editor, r.field);
        editor->deactivate();
        editor->deactivate();
        QVERIFY(!editor->getWidget()->isVisible());
        editor->releaseWidgets();
        QVERIFY(rig.field->set(r.outside));
        EditorRig::runSensors();
        QCOMPARE(rig.host.services.count(), 0);
    }

    void survivesTheDeathOfItsContainerWhileIdle_data() { addRows(); }
    void survivesTheDeathOfItsContainerWhileIdle()
    {
        const EditorRow& r = fetchRow();
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        rig.killNode();
        QVERIFY(!editor->getWidget()->isEnabled());
        QVERIFY(!editor->getEditedObject());
        EditorRig::runSensors();
        editor->deactivate();
        QCOMPARE(rig.host.services.count(), 0);
    }

    void survivesTheDeathOfItsContainerWhateverHasBegun_data() { addBeginnings(false); }
    void survivesTheDeathOfItsContainerWhateverHasBegun()
    {
        const EditorRow& r = fetchRow();
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        fetchBeginning().begin(rig);
        const int count = rig.host.services.count();
        rig.host.services.commands.clear();
        rig.killNode();
        QVERIFY(!editor->getWidget()->isEnabled());
        QVERIFY(!editor->getEditedObject());
        QVERIFY(!editor->hasPendingEdit());
        QVERIFY(!QApplication::activePopupWidget());
        EditorRig::runSensors();
        // What was begun is ended, with nobody to take it.
        for (QWidget* widget : editor->getWidget()->findChildren<QWidget*>())
            releaseOver(*widget);
        rig.leave();
        editor->deactivate();
        QCOMPARE(rig.host.services.count(), 0);
        QCOMPARE(count, 0);
    }

    void isAsGoodAsNewForTheNextFieldWhateverHasBegun_data() { addBeginnings(false); }
    void isAsGoodAsNewForTheNextFieldWhateverHasBegun()
    {
        const EditorRow& r = fetchRow();
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        fetchBeginning().begin(rig);
        rig.killNode();
        rig.host.services.commands.clear();
        rig.node = new SoEveryField;
        rig.node->ref();
        rig.field = rig.node->getField(r.field);
        rig.edit();
        QVERIFY(editor->getWidget()->isEnabled());
        QCOMPARE(r.shown(rig), QString(r.shownAtFirst));
        rig.leave();
        QCOMPARE(rig.host.services.count(), 0);
        if (r.act)
            r.act(rig);
        QCOMPARE(rig.text().simplified(), QString(r.afterAct));
    }

    void escapeTakesBackWhatHasBegun_data() { addBeginnings(true); }
    void escapeTakesBackWhatHasBegun()
    {
        const EditorRow& r = fetchRow();
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        const QString before = rig.text();
        fetchBeginning().begin(rig);
        QWidget* const focused = QApplication::focusWidget();
        QTest::keyClick(focused, Qt::Key_Escape);
        EditorRig::runSensors();
        QCOMPARE(r.shown(rig), QString(r.shownAtFirst));
        QVERIFY(!editor->hasPendingEdit());
        rig.leave();
        QCOMPARE(rig.text(), before);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void aTypedTextSurvivesAnOutsideChangeWhileItHasTheFocus_data() { addBeginnings(true); }
    void aTypedTextSurvivesAnOutsideChangeWhileItHasTheFocus()
    {
        const EditorRow& r = fetchRow();
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        fetchBeginning().begin(rig);
        const bool isTyping = editor->hasPendingEdit();
        const QString typed = textInFocus();
        QVERIFY(rig.field->set(r.outside));
        EditorRig::runSensors();
        QCOMPARE(editor->hasPendingEdit(), isTyping);
        if (isTyping)
            QCOMPARE(textInFocus(), typed);
        else
            QCOMPARE(r.shown(rig), QString(r.shownOutside));
    }

    void theButtonsWork_data() { addRows(); }
    void theButtonsWork()
    {
        const EditorRow& r = fetchRow();
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        const QString atFirst = rig.text();
        QVERIFY(rig.field->set(r.outside));
        QTest::mouseClick(rig.find<QPushButton>("m_ignoreButton"), Qt::LeftButton);
        QVERIFY(rig.field->isIgnored());
        QTest::mouseClick(rig.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
        QCOMPARE(rig.text(), atFirst);
        QCOMPARE(rig.host.services.count(), 2);
    }

    void everyControlHasANameForScreenReaders_data() { addRows(); }
    void everyControlHasANameForScreenReaders()
    {
        const EditorRow& r = fetchRow();
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        for (QWidget* widget : tabStopsOf(rig))
            QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
        QCOMPARE(tabStopsOf(rig).isEmpty(), !r.act);
    }

    void theTabKeyVisitsEveryControlInReadingOrder_data() { addRows(); }
    void theTabKeyVisitsEveryControlInReadingOrder()
    {
        const EditorRow& r = fetchRow();
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        QList<QWidget*> stops = tabStopsOf(rig);
        std::sort(stops.begin(), stops.end(), &readsBefore);
        QCOMPARE(namesOf(tabThrough(rig)).join(QStringLiteral(", ")),
                 namesOf(stops).join(QStringLiteral(", ")));
    }

    void theWheelOverAControlWithoutTheFocusChangesNothing_data() { addRows(); }
    void theWheelOverAControlWithoutTheFocusChangesNothing()
    {
        const EditorRow& r = fetchRow();
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        const QString before = rig.text();
        rig.leave();
        for (QWidget* widget : editor->getWidget()->findChildren<QWidget*>()) {
            turnWheel(*widget);
            QVERIFY2(rig.text() == before, widget->metaObject()->className());
            QVERIFY2(!widget->hasFocus(), widget->metaObject()->className());
        }
        QCOMPARE(rig.host.services.count(), 0);
    }
};

TAVRIK_TEST_MAIN(tst_SingleValueEditorContract)
#include "tst_SingleValueEditorContract.moc"

#include "tests/support/CellEnds.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/DvSlider.h"
#include "FieldEditors/MFWidgets/DvMFFloatWidget.h"
#include "FieldEditors/MFWidgets/DvMFInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFStringWidget.h"
#include "FieldEditors/MFWidgets/DvMFUInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFVec2fWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec2sWidget.h"

#include <QCheckBox>
#include <QSlider>

using Delegate = DvMFieldTableItemDelegate;

class tst_DvMFieldTableCells : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void aLineCommitsOnce_data() { addEnds(); }
    void aLineCommitsOnce()
    {
        QFETCH(int, end);
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.type(1, 1, "2.5");
        QCOMPARE(rig.rows().at(1), QByteArray("3 4"));
        endWith(rig, end);
        QCOMPARE(rig.rows().at(1), QByteArray("3 2.5"));
        rig.leave();
        TableRig::runSensors();
        QCOMPARE(rig.host.services.count(), 1);
        QCOMPARE(rig.shownRow(1), QStringLiteral("3|2.5"));
    }

    void aSliderCommitsOnce_data() { addEnds(); }
    void aSliderCommitsOnce()
    {
        QFETCH(int, end);
        DvMFFloatWidget editor;
        const TableRig rig(editor, "mfFloat");
        rig.type(1, 0, "7.25");
        QVERIFY(qobject_cast<DvSlider*>(rig.table().delegate().openEditor()));
        const SbUniqueId before = rig.node->getNodeId();
        endWith(rig, end);
        QCOMPARE(rig.rows().at(1), QByteArray("7.25"));
        QCOMPARE(rig.node->getNodeId(), before + 1);
        rig.leave();
        TableRig::runSensors();
        QCOMPARE(rig.shownRow(1), QStringLiteral("7.25"));
    }

    void escapeDropsWhatWasTyped_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::newRow("something") << "8";
        QTest::newRow("nothing") << "";
    }
    void escapeDropsWhatWasTyped()
    {
        QFETCH(QString, typed);
        DvMFVec2fWidget vectors;
        DvMFFloatWidget floats;
        const TableRig lines(vectors, "mfVec2f");
        const TableRig sliders(floats, "mfFloat");
        for (const TableRig* rig : {&lines, &sliders}) {
            QApplication::setActiveWindow(const_cast<QWidget*>(&rig->window));
            const QList<QByteArray> before = rig->rows();
            const SbUniqueId id = rig->node->getNodeId();
            rig->type(1, 0, typed);
            endWith(*rig, Escape);
            QVERIFY(!rig->table().delegate().openEditor());
            rig->leave();
            QCOMPARE(rig->rows(), before);
            QCOMPARE(rig->node->getNodeId(), id);
            QCOMPARE(rig->host.services.count(), 0);
            // Editing goes on after it.
            QVERIFY(rig->openCell(0, 0));
        }
    }

    void lookingIntoACellCommitsNothing_data()
    {
        addEnds();
        QTest::newRow("Escape") << int(Escape);
    }
    void lookingIntoACellCommitsNothing()
    {
        QFETCH(int, end);
        DvMFVec2fWidget vectors;
        DvMFFloatWidget floats;
        const TableRig lines(vectors, "mfVec2f");
        const TableRig sliders(floats, "mfFloat");
        for (const TableRig* rig : {&lines, &sliders}) {
            QApplication::setActiveWindow(const_cast<QWidget*>(&rig->window));
            rig->field->set1(1, rig == &lines ? "1.2345678 3" : "1.2345678");
            TableRig::runSensors();
            const QList<QByteArray> before = rig->rows();
            const SbUniqueId id = rig->node->getNodeId();
            QVERIFY(rig->openCell(1, 0));
            endWith(*rig, end);
            rig->leave();
            QCOMPARE(rig->rows(), before);
            QCOMPARE(rig->node->getNodeId(), id);
            QCOMPARE(rig->host.services.count(), 0);
        }
    }

    void tabGoesOnToTheNextCell()
    {
        DvMFVec2fWidget vectors;
        const TableRig lines(vectors, "mfVec2f");
        lines.openCell(0, 0);
        QTest::keyClick(lines.openLine(), Qt::Key_Tab);
        QCOMPARE(lines.table().currentColumn(), 1);
        QVERIFY(lines.openLine());
        QTest::keyClick(lines.openLine(), Qt::Key_Backtab);
        QCOMPARE(lines.table().currentColumn(), 0);

        DvMFFloatWidget floats;
        const TableRig sliders(floats, "mfFloat");
        sliders.type(0, 0, "9");
        QTest::keyClick(sliders.openLine(), Qt::Key_Tab);
        QCOMPARE(sliders.rows().at(0), QByteArray("9"));
        QCOMPARE(sliders.table().currentRow(), 1);
        QCOMPARE(sliders.openLine()->text(), QStringLiteral("2.500000"));
    }

    void theKeysOfTheRowsDoNotReachTheTableFromACell()
    {
        DvMFInt32Widget editor;
        const TableRig rig(editor, "mfInt32");
        rig.openCell(1, 0);
        QWidget* const slider = rig.table().delegate().openEditor();
        QWidget* const parts[] = {slider->findChild<QSlider*>(), slider->findChild<QCheckBox*>()};
        for (QWidget* part : parts) {
            part->setFocus();
            for (const Qt::Key key : {Qt::Key_Minus, Qt::Key_Delete, Qt::Key_Plus, Qt::Key_Shift})
                QTest::keyClick(part, key);
        }
        TableRig::runSensors();
        QCOMPARE(rig.rows().size(), 3);
        QCOMPARE(rig.host.services.count(), 0);
        QVERIFY(rig.table().selectionMode() != QAbstractItemView::NoSelection);
        QCOMPARE(rig.table().delegate().openEditor(), slider);
    }

    void aCapitalLetterInACellSelectsNoRows()
    {
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        rig.openCell(1, 0);
        QTest::keyPress(rig.openLine(), Qt::Key_Shift);
        QVERIFY(!rig.table().isRangeSelection());
        QTest::keyClick(rig.openLine(), Qt::Key_A, Qt::ShiftModifier);
        QTest::keyRelease(rig.openLine(), Qt::Key_Shift);
        QVERIFY(rig.table().selectionMode() != QAbstractItemView::NoSelection);
    }

    void aNegativeNumberIsTypedIntoASlider()
    {
        DvMFInt32Widget editor;
        const TableRig rig(editor, "mfInt32");
        rig.enter(1, 0, "-5");
        QCOMPARE(rig.rows(), (QList<QByteArray>{"1", "-5", "3"}));
    }

    void aKeyOpensTheCurrentCellAndIsTypedIntoIt()
    {
        for (const bool isSlider : {false, true}) {
            DvMFVec2fWidget vectors;
            DvMFInt32Widget integers;
            DvMFieldWidget& editor = isSlider ? static_cast<DvMFieldWidget&>(integers) : vectors;
            const TableRig rig(editor, isSlider ? "mfInt32" : "mfVec2f");
            rig.table().setFocus();
            rig.table().setCurrentCell(1, 0);
            QTest::keyClick(&rig.table(), Qt::Key_7);
            QVERIFY(rig.openLine());
            QCOMPARE(rig.openLine()->text(), QStringLiteral("7"));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_8);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QVERIFY(rig.rows().at(1).startsWith("78"));
        }
    }

    void anEmptiedSliderLineInventsNoZero_data() { addEnds(); }
    void anEmptiedSliderLineInventsNoZero()
    {
        QFETCH(int, end);
        DvMFFloatWidget editor;
        const TableRig rig(editor, "mfFloat");
        rig.type(1, 0, QString());
        endWith(rig, end);
        rig.leave();
        QCOMPARE(rig.rows(), (QList<QByteArray>{"1.5", "2.5", "3.5"}));
    }

    void theThumbWritesTheField()
    {
        DvMFInt32Widget editor;
        const TableRig rig(editor, "mfInt32");
        rig.openCell(1, 0);
        rig.table().delegate().openEditor()->findChild<QSlider*>()->setValue(6);
        QCOMPARE(rig.rows().at(1), QByteArray("6"));
        TableRig::runSensors();
        QVERIFY(rig.openLine());
    }

    void theKeysOnTheThumbEndTheEditingToo_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Escape") << int(Qt::Key_Escape);
    }
    void theKeysOnTheThumbEndTheEditingToo()
    {
        QFETCH(int, key);
        DvMFInt32Widget editor;
        const TableRig rig(editor, "mfInt32");
        auto* const thumb = rig.openCell(1, 0)->findChild<QSlider*>();
        thumb->setFocus();
        QTest::keyClick(thumb, Qt::Key_End);
        QCOMPARE(rig.rows().at(1), QByteArray("10"));
        QTest::keyClick(thumb, Qt::Key(key));
        QCoreApplication::processEvents();
        TableRig::settle();
        QVERIFY(!rig.table().delegate().openEditor());
        // What the thumb has written stays: it commits as it moves.
        QCOMPARE(rig.rows().at(1), QByteArray("10"));
    }

    void anotherEditorIsLeftToTheBase()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        QSpinBox number;
        number.setValue(7);
        const QModelIndex index = rig.table().model()->index(1, 0);
        rig.table().delegate().setEditorData(&number, index);
        QCOMPARE(number.value(), 7);
        rig.table().delegate().setModelData(&number, rig.table().model(), index);
        QCOMPARE(rig.shownRow(1), QStringLiteral("7|4"));
        QCOMPARE(rig.rows().at(1), QByteArray("3 4"));
    }

    void keepsAnIntermediateTextInTheCellAndOutOfTheField_data() { addEnds(); }
    void keepsAnIntermediateTextInTheCellAndOutOfTheField()
    {
        QFETCH(int, end);
        DvMFVec2sWidget editor;
        const TableRig rig(editor, "mfVec2s");
        rig.table().delegate().setValueKind(Delegate::ShortKind);
        rig.type(1, 0, "40000");
        endWith(rig, end);
        QCOMPARE(rig.rows().at(1), QByteArray("3 4"));
        QCOMPARE(rig.shownRow(1), QStringLiteral("40000|4"));
        QCOMPARE(rig.host.services.count(), 0);
        rig.field->touch();
        TableRig::runSensors();
        QCOMPARE(rig.shownRow(1), QStringLiteral("3|4"));
    }

    void everyKindHasItsValidator_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("acceptable");
        QTest::addColumn<QString>("other");
        QTest::newRow("16 bits") << int(Delegate::ShortKind) << "-32767"
                                 << "-32768";
        QTest::newRow("16 bits, unsigned") << int(Delegate::UShortKind) << "65535"
                                           << "65536";
        QTest::newRow("any integer") << int(Delegate::IntegerKind) << "-2147483648"
                                     << "2147483648";
        QTest::newRow("unsigned") << int(Delegate::UIntKind) << "4294967295"
                                  << "4294967296";
        QTest::newRow("32 bits") << int(Delegate::Int32Kind) << "-2147483647"
                                 << "-2147483648";
        QTest::newRow("32 bits, unsigned") << int(Delegate::UInt32Kind) << "4294967295"
                                           << "4294967296";
        QTest::newRow("single precision") << int(Delegate::FloatKind) << "3.402823e+38"
                                          << "1e39";
        QTest::newRow("double precision") << int(Delegate::DoubleKind) << "1.234567890123e300"
                                          << "1,000";
    }
    void everyKindHasItsValidator()
    {
        QFETCH(int, kind);
        QFETCH(QString, acceptable);
        QFETCH(QString, other);
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.table().delegate().setValueKind(kind);
        QLineEdit line;
        rig.table().delegate().setValidator(line);
        line.setText(acceptable);
        QVERIFY(line.hasAcceptableInput());
        line.setText(other);
        QVERIFY(!line.hasAcceptableInput());
    }

    void keepsTheSmallestNumbersOutOfTheSignedKinds()
    {
        DvMFVec2sWidget editor;
        const TableRig rig(editor, "mfVec2s");
        rig.table().delegate().setValueKind(Delegate::ShortKind);
        QLineEdit line;
        rig.table().delegate().setValidator(line);
        const auto* const validator = qobject_cast<const QIntValidator*>(line.validator());
        QCOMPARE(validator->bottom(), -32767);
        rig.table().delegate().setValueKind(Delegate::Int32Kind);
        rig.table().delegate().setValidator(line);
        QCOMPARE(qobject_cast<const QIntValidator*>(line.validator())->bottom(), -2147483647);
    }

    void theKindDecidesUponLineOrSlider()
    {
        DvMFInt32Widget editor;
        const TableRig rig(editor, "mfInt32");
        const int sliders[] = {Delegate::ShortKind, Delegate::UShortKind, Delegate::Int32Kind,
                               Delegate::UInt32Kind, Delegate::FloatKind};
        for (int kind = Delegate::TextKind; kind <= Delegate::DoubleKind; ++kind) {
            rig.table().delegate().setValueKind(kind);
            QWidget* const opened = rig.openCell(1, 0);
            const bool isSlider = std::count(std::begin(sliders), std::end(sliders), kind) > 0;
            QCOMPARE(qobject_cast<DvSlider*>(opened) != nullptr, isSlider);
            QCOMPARE(opened->objectName() == QLatin1String("qt_lineeditor"), !isSlider);
            endWith(rig, Escape);
        }
    }

    void aLineIsAsLargeAsItsCellAndHasNoFrame()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.openCell(1, 1);
        QVERIFY(!rig.openLine()->hasFrame());
        const QRect cell = rig.table().visualItemRect(rig.table().item(1, 1));
        QCOMPARE(rig.openLine()->geometry(), cell);
    }

    void aSliderReadsTheHexadecimalTextsOfUnsignedFields()
    {
        DvMFUInt32Widget editor;
        const TableRig rig(editor, "mfUInt32");
        rig.field->set1(1, "255");
        TableRig::runSensors();
        rig.openCell(1, 0);
        auto* const slider = qobject_cast<DvSlider*>(rig.table().delegate().openEditor());
        QCOMPARE(slider->valueText(), QStringLiteral("255"));
        endWith(rig, Return);
        SbString text;
        rig.field->get1(1, text);
        QCOMPARE(text.getString(), "0xff");
    }

    void aVeryLongTextIsNotCut()
    {
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        const QString text(40000, QLatin1Char('x'));
        static_cast<SoMFString*>(rig.field)->set1Value(1, text.toLatin1().constData());
        TableRig::runSensors();
        rig.openCell(1, 0);
        QCOMPARE(rig.openLine()->text().size(), text.size());
        QTest::keyClick(rig.openLine(), Qt::Key_End);
        QTest::keyClick(rig.openLine(), Qt::Key_Z);
        endWith(rig, Return);
        QCOMPARE(rig.rows().at(1).size(), text.size() + 3);
    }
};

TAVRIK_TEST_MAIN(tst_DvMFieldTableCells)
#include "tst_DvMFieldTableCells.moc"

#include "tests/support/FieldTexts.h"
#include "tests/support/ModalDialog.h"
#include "tests/support/TestMain.h"
#include "tests/system/SessionOnScreen.h"

#include "app/AppRobot.h"

#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoMaterial.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>

namespace {

/** Large points, each of a colour of its own, with colours left for those that are added. */
const char* const s_scene =
    "#Inventor V2.1 ascii\n"
    "DEF Everything Separator {\n"
    "  LightModel { model BASE_COLOR }\n"
    "  DrawStyle { pointSize 16 }\n"
    "  DEF Paint Material { diffuseColor [ 1 0 0, 0 1 0, 0 0 1, 1 1 0, 0 1 1, 1 0 1, 1 1 1 ] }\n"
    "  MaterialBinding { value PER_VERTEX }\n"
    "  DEF Dots Coordinate3 { point [ -2 -2 0, 2 -2 0, 2 2 0, -2 2 0 ] }\n"
    "  PointSet {}\n"
    "}\n";

} // namespace

/** The table of a multiple-value field in the program's window, with mouse, keyboard and screen. */
class tst_TablesOnScreen : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void typingACoordinateMovesItsPoint();
    void keepsATypedCoordinateWhenItIsUndone();
    void tabLeadsFromCoordinateToCoordinate();
    void rowsFollowEveryButton();
    void undoingEveryEditOfRowsBringsTheFirstPictureBack();
    void aColorFromTheDialogChangesThePicture();
    void keepsAChosenColorWhenItIsUndone();

private:
    static SoMField& points() { return field<SoCoordinate3>("Dots", &SoCoordinate3::point); }
    static SoMField& colors() { return field<SoMaterial>("Paint", &SoMaterial::diffuseColor); }
    template <class Node, class Field>
    static SoMField& field(const char* name, Field Node::*member)
    {
        return static_cast<Node*>(SoNode::getByName(name))->*member;
    }

    QTableWidget& table() const { return *m_session.visible<QTableWidget>("m_table"); }
    QPoint middleOf(int row, int column) const;
    void clickCell(int row, int column) const;
    void enter(int row, int column, const QString& text) const;
    void press(const char* button) const;
    void undo() const;
    void redo() const;
    bool isInStep(const SoMField& field) const;
    void chooseColor(int row, const QString& name) const;

    SessionOnScreen m_session;
};

void tst_TablesOnScreen::initTestCase()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void tst_TablesOnScreen::init()
{
    m_session.start(s_scene);
}

void tst_TablesOnScreen::cleanup()
{
    m_session.finish();
}

QPoint tst_TablesOnScreen::middleOf(int row, int column) const
{
    return table().visualRect(table().model()->index(row, column)).center();
}

void tst_TablesOnScreen::clickCell(int row, int column) const
{
    QTest::mouseClick(table().viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(row, column));
}

void tst_TablesOnScreen::enter(int row, int column, const QString& text) const
{
    clickCell(row, column);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F2);
    QVERIFY(qobject_cast<QLineEdit*>(QApplication::focusWidget()));
    QTest::keyClicks(QApplication::focusWidget(), text);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}

void tst_TablesOnScreen::press(const char* button) const
{
    QTest::mouseClick(m_session.visible<QPushButton>(button), Qt::LeftButton);
}

void tst_TablesOnScreen::undo() const
{
    m_session.waitUntilActive();
    QTest::keyClick(&table(), Qt::Key_Z, Qt::ControlModifier);
}

void tst_TablesOnScreen::redo() const
{
    m_session.waitUntilActive();
    QTest::keyClick(&table(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
}

/** Whether table, spin box, label and current cell say the same of a field's rows. */
bool tst_TablesOnScreen::isInStep(const SoMField& field) const
{
    const int rows = field.getNum();
    const auto& box = *m_session.visible<QSpinBox>("m_accessBox");
    const auto& label = *m_session.visible<QLabel>("m_labelNumElement");
    return table().rowCount() == rows && box.maximum() == rows &&
           box.minimum() == std::min(rows, 1) &&
           label.text() == QStringLiteral("of %1").arg(rows) &&
           box.value() == table().currentRow() + 1;
}

/** Clicks the row's first cell and types a colour's name into the dialog that this opens. */
void tst_TablesOnScreen::chooseColor(int row, const QString& name) const
{
    const ModalDialog dialog([&name](QDialog& up) {
        QVERIFY(QTest::qWaitForWindowActive(&up));
        for (QLineEdit* line : up.findChildren<QLineEdit*>()) {
            // Not those of the spin boxes.
            if (!qobject_cast<QAbstractSpinBox*>(line->parent()))
                SessionOnScreen::type(*line, name);
        }
        QTest::keyClick(&up, Qt::Key_Return);
    });
    clickCell(row, 0);
    ModalDialog::waitForEnd();
    QVERIFY(dialog.wasUp());
}

void tst_TablesOnScreen::typingACoordinateMovesItsPoint()
{
    m_session.select("Dots", "point");
    const QImage before = m_session.picture();
    enter(2, 1, "0.5");
    QCOMPARE(rowTextsOf(points()).value(2), QByteArray("2 0.5 0"));
    QVERIFY(AppRobot::differ(m_session.picture(), before));
    QCOMPARE(table().item(2, 1)->text(), QStringLiteral("0.5"));
    QCOMPARE(table().currentRow(), 2);
    QVERIFY(isInStep(points()));
    QVERIFY(m_session.window().isWindowModified());
}

void tst_TablesOnScreen::keepsATypedCoordinateWhenItIsUndone()
{
    typingACoordinateMovesItsPoint();
    const QImage typed = m_session.picture();
    undo();
    QCOMPARE(m_session.history().index(), 0);
    QVERIFY(!AppRobot::differ(m_session.picture(), typed));
    redo();
    QCOMPARE(m_session.history().index(), 1);
    QCOMPARE(rowTextsOf(points()).value(2), QByteArray("2 0.5 0"));
}

void tst_TablesOnScreen::tabLeadsFromCoordinateToCoordinate()
{
    m_session.select("Dots", "point");
    clickCell(0, 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F2);
    for (const char* text : {"-1", "-1.5", "0.25"}) {
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(rowTextsOf(points()).value(0), QByteArray("-1 -1.5 0.25"));
    QCOMPARE(m_session.history().count(), 3);
    QCOMPARE(table().currentRow(), 1);
    QTRY_VERIFY(isInStep(points()));
}

void tst_TablesOnScreen::rowsFollowEveryButton()
{
    m_session.select("Dots", "point");
    QTRY_VERIFY(isInStep(points()));
    clickCell(1, 0);
    for (const char* button :
         {"m_addButton", "m_downButton", "m_addButton", "m_upButton", "m_deleteButton"}) {
        press(button);
        QTRY_VERIFY2(isInStep(points()), button);
    }
    QTest::keyClick(&table(), Qt::Key_Plus);
    QTRY_VERIFY(isInStep(points()));
    while (points().getNum() > 0) {
        QTest::keyClick(&table(), Qt::Key_Delete);
        QTRY_VERIFY(isInStep(points()));
    }
    while (m_session.history().canUndo()) {
        undo();
        QTRY_VERIFY(isInStep(points()));
    }
    QCOMPARE(points().getNum(), 4);
    while (m_session.history().canRedo()) {
        redo();
        QTRY_VERIFY(isInStep(points()));
    }
    QCOMPARE(points().getNum(), 0);
}

void tst_TablesOnScreen::undoingEveryEditOfRowsBringsTheFirstPictureBack()
{
    m_session.select("Dots", "point");
    const QList<QByteArray> first = rowTextsOf(points());
    QList<QImage> pictures = {m_session.picture()};
    const auto look = [&] {
        pictures << m_session.picture();
        QVERIFY(AppRobot::differ(pictures.last(), pictures.at(pictures.size() - 2)));
    };
    clickCell(1, 0);
    press("m_addButton");
    enter(2, 0, "0");
    look();
    clickCell(0, 0);
    press("m_deleteButton");
    look();
    clickCell(3, 0);
    press("m_upButton");
    look();
    const QList<QByteArray> last = rowTextsOf(points());
    while (m_session.history().canUndo())
        undo();
    QCOMPARE(rowTextsOf(points()), first);
    QVERIFY(!AppRobot::differ(m_session.picture(), pictures.first()));
    while (m_session.history().canRedo())
        redo();
    QCOMPARE(rowTextsOf(points()), last);
    QVERIFY(!AppRobot::differ(m_session.picture(), pictures.last()));
}

void tst_TablesOnScreen::aColorFromTheDialogChangesThePicture()
{
    m_session.select("Paint", "diffuseColor");
    const QImage before = m_session.picture();
    chooseColor(1, "#ffffff");
    QCOMPARE(rowTextsOf(colors()).value(1), QByteArray("1 1 1"));
    QVERIFY(AppRobot::differ(m_session.picture(), before));
    QCOMPARE(m_session.history().count(), 1);
    QCOMPARE(table().currentRow(), 1);
    QVERIFY(isInStep(colors()));
}

void tst_TablesOnScreen::keepsAChosenColorWhenItIsUndone()
{
    aColorFromTheDialogChangesThePicture();
    const QImage chosen = m_session.picture();
    undo();
    QCOMPARE(m_session.history().index(), 0);
    QVERIFY(!AppRobot::differ(m_session.picture(), chosen));
    redo();
    QCOMPARE(rowTextsOf(colors()).value(1), QByteArray("1 1 1"));
}

TAVRIK_TEST_MAIN(tst_TablesOnScreen)
#include "tst_TablesOnScreen.moc"

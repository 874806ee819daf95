#include "tests/support/TestMain.h"
#include "tests/system/SessionOnScreen.h"

#include "lib/HostFieldModel.h"

#include <Inventor/nodes/SoTransform.h>

#include <QDockWidget>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

/** The way from a node to its field's editor, in the program's window with a real mouse. */
class tst_NodeEditorOnScreen : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_session.start(); }
    void cleanup() { m_session.finish(); }
    void selectingANodeShowsItsFields();
    void thereIsOneListOfFieldsOnTheScreen();
    void filteringAndReturnShowTheFieldsEditor();
    void aDoubleClickShowsTheFieldsEditor();
    void theListStaysWhereItIsWhileTheEditorComesAndGoes();
    void anEditShowsInTheList();
    void undoingTheIgnoreButtonShowsInTheList();
    void theWindowsOwnListCanBeOpened();
    void columnWidthsSurviveTheNextNode();
    void theSceneIsReplacedWhileANodeIsListed();
    void everyColumnIsInSightInANarrowWindow();

private:
    QDockWidget& dock(const char* title) const;
    QTableView& view() const;
    QLineEdit& filter() const;
    QString shown(int row, int column) const
    {
        return view().model()->index(row, column).data().toString();
    }

    SessionOnScreen m_session;
};

QDockWidget& tst_NodeEditorOnScreen::dock(const char* title) const
{
    for (QDockWidget* dock : m_session.window().findChildren<QDockWidget*>())
        if (dock->windowTitle() == QLatin1String(title))
            return *dock;
    qFatal("there is no dock %s", title);
}

QTableView& tst_NodeEditorOnScreen::view() const
{
    auto* view = m_session.visible<QTableView>("fieldView");
    return view ? *view : (qFatal("no list of fields is shown"), *view);
}

QLineEdit& tst_NodeEditorOnScreen::filter() const
{
    auto* line = m_session.visible<QLineEdit>("fieldFilter");
    return line ? *line : (qFatal("no filter is shown"), *line);
}

void tst_NodeEditorOnScreen::selectingANodeShowsItsFields()
{
    QVERIFY(dock("Node Editor").isHidden());
    m_session.selectNode("Move");
    QVERIFY(dock("Node Editor").isVisible());
    QVERIFY(dock("Node Editor").isAncestorOf(&view()));
    QCOMPARE(view().model()->rowCount(), 5);
    QCOMPARE(shown(0, HostFieldModel::NameColumn), QStringLiteral("translation"));
    m_session.window().selectPath(nullptr);
    QVERIFY(dock("Node Editor").isHidden());
}

void tst_NodeEditorOnScreen::thereIsOneListOfFieldsOnTheScreen()
{
    QVERIFY(dock("Fields").isHidden());
    m_session.selectNode("Move");
    int lists = 0;
    for (const QTableView* each : m_session.window().findChildren<QTableView*>("fieldView"))
        lists += each->isVisible() ? 1 : 0;
    QCOMPARE(lists, 1);
}

void tst_NodeEditorOnScreen::filteringAndReturnShowTheFieldsEditor()
{
    m_session.selectNode("Move");
    QTest::mouseClick(&filter(), Qt::LeftButton);
    QTest::keyClicks(&filter(), "TRANSL");
    QCOMPARE(view().model()->rowCount(), 1);
    QVERIFY(dock("Field Editor").isHidden());
    QTest::keyClick(&filter(), Qt::Key_Tab);
    QVERIFY(view().hasFocus());
    QTest::keyClick(&view(), Qt::Key_Return);
    QVERIFY(dock("Field Editor").isVisible());
    QCOMPARE(m_session.vectorLines().size(), 3);
    QTest::keyClick(&view(), Qt::Key_Escape);
    QCOMPARE(view().model()->rowCount(), 5);
    QVERIFY(dock("Field Editor").isVisible());
}

void tst_NodeEditorOnScreen::aDoubleClickShowsTheFieldsEditor()
{
    m_session.selectNode("Move");
    const QModelIndex last = view().model()->index(view().model()->rowCount() - 1, 0);
    const QPoint place = view().visualRect(last).center();
    QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::qWait(50);
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(m_session.window().services().selectedField(),
             m_session.window().services().selectedNode()->getField("center"));
    QVERIFY(dock("Field Editor").isVisible());
}

void tst_NodeEditorOnScreen::theListStaysWhereItIsWhileTheEditorComesAndGoes()
{
    m_session.selectNode("Move");
    QTest::qWait(200);
    const auto geometry = [this] { return dock("Node Editor").geometry(); };
    const QRect before = geometry();
    m_session.selectField("translation");
    QCOMPARE(geometry(), before);
    m_session.selectField("scaleFactor");
    QCOMPARE(geometry(), before);
    m_session.selectNode("Ball");
    QTRY_COMPARE(geometry(), before);
}

void tst_NodeEditorOnScreen::anEditShowsInTheList()
{
    m_session.select("Move", "translation");
    m_session.type(*m_session.vectorLines().first(), "1.5");
    QTest::keyClick(m_session.vectorLines().first(), Qt::Key_Return);
    QTRY_COMPARE(shown(0, HostFieldModel::ValueColumn), QStringLiteral("1.5 0 0"));
}

void tst_NodeEditorOnScreen::undoingTheIgnoreButtonShowsInTheList()
{
    m_session.select("Style", "style");
    const auto isIgnored = [this] { return !shown(0, HostFieldModel::IgnoredColumn).isEmpty(); };
    QTest::mouseClick(m_session.visible<QPushButton>("m_ignoreButton"), Qt::LeftButton);
    QTRY_VERIFY(isIgnored());
    QTest::keyClick(&m_session.window(), Qt::Key_Z, Qt::ControlModifier);
    QTRY_VERIFY(!isIgnored());
}

void tst_NodeEditorOnScreen::theWindowsOwnListCanBeOpened()
{
    dock("Fields").toggleViewAction()->trigger();
    QVERIFY(dock("Fields").isVisible());
    m_session.selectNode("Move");
    QCOMPARE(dock("Fields").findChild<QTableView*>("fieldView")->model()->rowCount(), 5);
}

void tst_NodeEditorOnScreen::columnWidthsSurviveTheNextNode()
{
    m_session.selectNode("Move");
    view().horizontalHeader()->resizeSection(HostFieldModel::NameColumn, 133);
    m_session.selectNode("Ball");
    m_session.selectNode("Move");
    QCOMPARE(view().columnWidth(HostFieldModel::NameColumn), 133);
}

void tst_NodeEditorOnScreen::theSceneIsReplacedWhileANodeIsListed()
{
    m_session.selectNode("Move");
    const QString other =
        m_session.write("other.iv", "#Inventor V2.1 ascii\nDEF Only Cylinder {}\n");
    QVERIFY(m_session.window().openFile(other));
    QVERIFY(dock("Node Editor").isHidden());
    m_session.selectNode("Only");
    QCOMPARE(view().model()->rowCount(), 3);
}

void tst_NodeEditorOnScreen::everyColumnIsInSightInANarrowWindow()
{
    m_session.window().resize(1280, 720);
    m_session.selectNode("Move");
    QTest::qWait(200);
    for (int column = 0; column < HostFieldModel::ColumnCount; ++column) {
        const QRect cell = view().visualRect(view().model()->index(0, column));
        QVERIFY(cell.width() >= 20 && view().viewport()->rect().contains(cell.center()));
    }
    QVERIFY(view().columnWidth(HostFieldModel::ValueColumn) >= 60);
}

TAVRIK_TEST_MAIN(tst_NodeEditorOnScreen)
#include "tst_NodeEditorOnScreen.moc"

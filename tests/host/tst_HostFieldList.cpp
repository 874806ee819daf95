#include "lib/HostFieldList.h"
#include "lib/HostServices.h"

#include "tests/support/TestMain.h"

#include <Inventor/SoDB.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/sensors/SoSensorManager.h>

#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QToolButton>

#include <memory>

/** The list of fields as a user works it, with keys and mouse. */
class tst_HostFieldList : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<SoField*>("SoField*"); }
    void init();
    void cleanup();

    void aClickSelectsTheField();
    void aDoubleClickSelectsTheFieldOnce();
    void returnSelectsTheCurrentField();
    void theArrowKeysSelectFieldAfterField();
    void aFieldSelectedElsewhereIsShown();
    void tabGoesFromTheFilterToTheListAndOn();
    void typingFilters();
    void escapeClearsTheFilter();
    void escapeInTheListClearsTheFilterToo();
    void escapeWithoutAFilterIsLeftToOthers();
    void theButtonInTheLineClearsTheFilter();
    void downGoesFromTheFilterToTheFirstField();
    void returnGoesFromTheFilterToTheFirstField();
    void downWithNothingFoundStaysInTheFilter();
    void findGoesToTheFilterAndSelectsWhatIsThere();
    void aFieldThatIsFilteredOutStaysSelected();
    void filteringSelectsNothing();
    void theLineTellsWhoseFieldsItFilters();
    void aChangeOfTheValueIsShown();
    void theDeathOfTheNodeEmptiesTheList();
    void columnWidthsSurviveAnotherNode();
    void columnWidthsSurviveAFilter();
    void theMarksAreNarrow();

private:
    QModelIndex index(int row, int column = HostFieldModel::NameColumn) const;
    void click(int row) const;
    void doubleClick(int row) const;
    void key(QWidget* widget, Qt::Key key) const { QTest::keyClick(widget, key); }

    SoCone* m_cone = nullptr;
    std::unique_ptr<HostServices> m_services;
    std::unique_ptr<HostFieldList> m_list;
    QLineEdit* m_filter = nullptr;
    QTableView* m_view = nullptr;
};

void tst_HostFieldList::init()
{
    m_cone = new SoCone;
    m_cone->ref();
    m_services = std::make_unique<HostServices>();
    m_list = std::make_unique<HostFieldList>(*m_services);
    m_filter = m_list->findChild<QLineEdit*>("fieldFilter");
    m_view = m_list->findChild<QTableView*>("fieldView");
    m_list->show();
    QApplication::setActiveWindow(m_list.get());
    m_services->selectNode(m_cone);
    m_list->setNode(m_cone);
}

void tst_HostFieldList::cleanup()
{
    m_list.reset();
    m_services.reset();
    if (m_cone)
        m_cone->unref();
    m_cone = nullptr;
}

QModelIndex tst_HostFieldList::index(int row, int column) const
{
    return m_view->model()->index(row, column);
}

void tst_HostFieldList::click(int row) const
{
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier,
                      m_view->visualRect(index(row)).center());
}

void tst_HostFieldList::doubleClick(int row) const
{
    click(row);
    QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier,
                       m_view->visualRect(index(row)).center());
}

void tst_HostFieldList::aClickSelectsTheField()
{
    click(1);
    QCOMPARE(m_services->selectedField(), static_cast<SoField*>(&m_cone->height));
}

void tst_HostFieldList::aDoubleClickSelectsTheFieldOnce()
{
    QSignalSpy selected(m_services.get(), SIGNAL(selectedFieldChanged(SoField*)));
    doubleClick(1);
    QCOMPARE(m_services->selectedField(), static_cast<SoField*>(&m_cone->height));
    QCOMPARE(selected.count(), 1);
}

void tst_HostFieldList::returnSelectsTheCurrentField()
{
    m_view->setFocus(Qt::TabFocusReason); // the first row is current, and not selected
    QVERIFY(!m_services->selectedField());
    key(m_view, Qt::Key_Return);
    QCOMPARE(m_services->selectedField(), static_cast<SoField*>(&m_cone->bottomRadius));
}

void tst_HostFieldList::theArrowKeysSelectFieldAfterField()
{
    click(0);
    key(m_view, Qt::Key_Down);
    QCOMPARE(m_services->selectedField(), static_cast<SoField*>(&m_cone->height));
    key(m_view, Qt::Key_End);
    QCOMPARE(m_services->selectedField(), static_cast<SoField*>(&m_cone->parts));
    key(m_view, Qt::Key_Home);
    QCOMPARE(m_services->selectedField(), static_cast<SoField*>(&m_cone->bottomRadius));
}

void tst_HostFieldList::aFieldSelectedElsewhereIsShown()
{
    m_services->selectField(&m_cone->height);
    QVERIFY(m_view->selectionModel()->isRowSelected(1, QModelIndex()));
    m_services->selectField(nullptr);
    QVERIFY(!m_view->selectionModel()->hasSelection());
}

void tst_HostFieldList::tabGoesFromTheFilterToTheListAndOn()
{
    m_filter->setFocus();
    key(m_filter, Qt::Key_Tab);
    QVERIFY(m_view->hasFocus());
    key(m_view, Qt::Key_Tab);
    QVERIFY(!m_view->hasFocus());
    m_view->setFocus();
    key(m_view, Qt::Key_Backtab);
    QVERIFY(m_filter->hasFocus());
}

void tst_HostFieldList::typingFilters()
{
    QTest::keyClicks(m_filter, "HEI");
    QCOMPARE(m_view->model()->rowCount(), 1);
    QCOMPARE(index(0).data().toString(), QString("height"));
}

void tst_HostFieldList::escapeClearsTheFilter()
{
    QTest::keyClicks(m_filter, "hei");
    key(m_filter, Qt::Key_Escape);
    QCOMPARE(m_filter->text(), QString());
    QCOMPARE(m_view->model()->rowCount(), 3);
}

void tst_HostFieldList::escapeInTheListClearsTheFilterToo()
{
    QTest::keyClicks(m_filter, "hei");
    click(0);
    key(m_view, Qt::Key_Escape);
    QCOMPARE(m_view->model()->rowCount(), 3);
    QVERIFY(m_view->selectionModel()->isRowSelected(1, QModelIndex()));
}

void tst_HostFieldList::escapeWithoutAFilterIsLeftToOthers()
{
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(m_filter, &escape);
    QVERIFY(!escape.isAccepted());
}

void tst_HostFieldList::theButtonInTheLineClearsTheFilter()
{
    QTest::keyClicks(m_filter, "hei");
    auto* button = m_filter->findChild<QToolButton*>();
    QVERIFY(button);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(m_view->model()->rowCount(), 3);
}

void tst_HostFieldList::downGoesFromTheFilterToTheFirstField()
{
    QTest::keyClicks(m_filter, "hei");
    key(m_filter, Qt::Key_Down);
    QVERIFY(m_view->hasFocus());
    QCOMPARE(m_services->selectedField(), static_cast<SoField*>(&m_cone->height));
}

void tst_HostFieldList::returnGoesFromTheFilterToTheFirstField()
{
    QTest::keyClicks(m_filter, "parts");
    key(m_filter, Qt::Key_Return);
    QVERIFY(m_view->hasFocus());
    QCOMPARE(m_services->selectedField(), static_cast<SoField*>(&m_cone->parts));
}

void tst_HostFieldList::downWithNothingFoundStaysInTheFilter()
{
    m_filter->setFocus();
    QTest::keyClicks(m_filter, "no such field");
    key(m_filter, Qt::Key_Down);
    QVERIFY(m_filter->hasFocus());
    QVERIFY(!m_services->selectedField());
}

void tst_HostFieldList::findGoesToTheFilterAndSelectsWhatIsThere()
{
    QTest::keyClicks(m_filter, "e");
    click(0);
    QTest::keyClick(m_view, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(m_filter->hasFocus());
    QTest::keyClicks(m_filter, "parts");
    QCOMPARE(m_filter->text(), QString("parts"));
}

void tst_HostFieldList::aFieldThatIsFilteredOutStaysSelected()
{
    click(1);
    QTest::keyClicks(m_filter, "parts");
    QCOMPARE(m_services->selectedField(), static_cast<SoField*>(&m_cone->height));
    QVERIFY(!m_view->selectionModel()->hasSelection());
    key(m_filter, Qt::Key_Escape);
    QVERIFY(m_view->selectionModel()->isRowSelected(1, QModelIndex()));
}

void tst_HostFieldList::filteringSelectsNothing()
{
    click(1);
    QSignalSpy selected(m_services.get(), SIGNAL(selectedFieldChanged(SoField*)));
    QTest::keyClicks(m_filter, "hei");
    key(m_filter, Qt::Key_Escape);
    QCOMPARE(selected.count(), 0);
}

void tst_HostFieldList::theLineTellsWhoseFieldsItFilters()
{
    QVERIFY(m_filter->placeholderText().contains("Cone"));
    m_list->setNode(nullptr);
    QCOMPARE(m_filter->placeholderText(), QString("No node is selected"));
}

void tst_HostFieldList::aChangeOfTheValueIsShown()
{
    m_cone->height = 42;
    SoDB::getSensorManager()->processDelayQueue(TRUE);
    QCOMPARE(index(1, HostFieldModel::ValueColumn).data().toString(), QString("42"));
}

void tst_HostFieldList::theDeathOfTheNodeEmptiesTheList()
{
    click(1);
    QSignalSpy gone(m_list.get(), SIGNAL(nodeGone()));
    m_cone->unref();
    m_cone = nullptr;
    QCOMPARE(m_view->model()->rowCount(), 0);
    QCOMPARE(gone.count(), 1);
    QCOMPARE(m_filter->placeholderText(), QString("No node is selected"));
}

void tst_HostFieldList::columnWidthsSurviveAnotherNode()
{
    m_view->horizontalHeader()->resizeSection(HostFieldModel::NameColumn, 77);
    m_view->horizontalHeader()->resizeSection(HostFieldModel::TypeColumn, 55);
    auto* cube = new SoCube;
    cube->ref();
    m_list->setNode(cube);
    m_list->setNode(nullptr);
    m_list->setNode(m_cone);
    QCOMPARE(m_view->columnWidth(HostFieldModel::NameColumn), 77);
    QCOMPARE(m_view->columnWidth(HostFieldModel::TypeColumn), 55);
    cube->unref();
}

void tst_HostFieldList::columnWidthsSurviveAFilter()
{
    m_view->horizontalHeader()->resizeSection(HostFieldModel::NameColumn, 77);
    QTest::keyClicks(m_filter, "no such field");
    key(m_filter, Qt::Key_Escape);
    QCOMPARE(m_view->columnWidth(HostFieldModel::NameColumn), 77);
}

void tst_HostFieldList::theMarksAreNarrow()
{
    for (int column = HostFieldModel::DefaultColumn; column < HostFieldModel::ColumnCount; ++column)
        QVERIFY(m_view->columnWidth(column) <= 2 * m_list->fontMetrics().height());
}

TAVRIK_TEST_MAIN(tst_HostFieldList)
#include "tst_HostFieldList.moc"

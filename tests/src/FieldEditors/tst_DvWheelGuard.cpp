#include "FieldEditors/DvWheelGuard.h"

#include "tests/support/TestMain.h"
#include "tests/support/WheelTurn.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

/** A scrolled column with one control of each sort that the wheel turns. */
struct Column
{
    Column()
    {
        auto* const content = new QWidget;
        auto* const layout = new QVBoxLayout(content);
        layout->addWidget(line);
        for (QWidget* control : controls()) {
            control->setFocusPolicy(Qt::StrongFocus);
            DvWheelGuard::install(*control);
            layout->addWidget(control);
        }
        choices->addItems({"a", "b", "c"});
        choices->setCurrentIndex(1);
        slider->setValue(50);
        spinBox->setValue(50);
        content->setMinimumHeight(2000);
        area.setWidget(content);
        area.resize(300, 200);
        area.show();
        QApplication::setActiveWindow(&area);
        line->setFocus();
    }

    QList<QWidget*> controls() const { return {slider, spinBox, choices}; }
    QList<int> values() const
    {
        return {slider->value(), spinBox->value(), choices->currentIndex()};
    }
    int scrolled() const { return area.verticalScrollBar()->value(); }

    QScrollArea area;
    QLineEdit* line = new QLineEdit;
    QSlider* slider = new QSlider(Qt::Horizontal);
    QSpinBox* spinBox = new QSpinBox;
    QComboBox* choices = new QComboBox;
};

} // namespace

class tst_DvWheelGuard : public QObject
{
    Q_OBJECT

private slots:
    void withoutTheFocusTheWheelScrollsWhatIsAround()
    {
        const Column column;
        const QList<int> before = column.values();
        for (QWidget* control : column.controls()) {
            const int scrolled = column.scrolled();
            turnWheel(*control, false);
            QVERIFY2(column.scrolled() > scrolled, control->metaObject()->className());
            QVERIFY(!control->hasFocus());
        }
        QCOMPARE(column.values(), before);
    }

    void withTheFocusTheWheelTurnsTheControl()
    {
        const Column column;
        for (int i = 0; i < column.controls().size(); ++i) {
            QWidget* const control = column.controls()[i];
            control->setFocus();
            const int before = column.values()[i];
            const int scrolled = column.scrolled();
            turnWheel(*control);
            QVERIFY(column.values()[i] != before);
            QCOMPARE(column.scrolled(), scrolled);
        }
    }

    void otherEventsReachTheControl()
    {
        const Column column;
        QTest::keyClick(column.slider, Qt::Key_Right);
        QCOMPARE(column.slider->value(), 51);
    }

    void theGuardGoesWithItsControl()
    {
        auto* const control = new QSlider;
        DvWheelGuard::install(*control);
        const QPointer<DvWheelGuard> guard = control->findChild<DvWheelGuard*>();
        QVERIFY(guard);
        delete control;
        QVERIFY(!guard);
    }
};

TAVRIK_TEST_MAIN(tst_DvWheelGuard)
#include "tst_DvWheelGuard.moc"

// Editing the rows of long multiple-value fields: whether a step costs what its own rows cost, and
// not what all the rows do.

#include "benchmarks/support/Bench.h"
#include "benchmarks/support/MFieldKind.h"
#include "benchmarks/support/MFieldRig.h"
#include "lib/HostServices.h"
#include "scenegraph/SoTavrik.h"

#include "FieldEditors/DvMFieldTable.h"
#include "FieldEditors/DvMFieldWidget.h"

#include <Inventor/SbString.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QSlider>
#include <QUndoStack>

#include <cstdlib>

namespace {

const int s_rows = 1000000;

void print(const QString& work, const MFieldKind& kind, double seconds, double ratio, double aim)
{
    Bench::printAtMost(kind.measure(work, seconds).constData(), ratio, aim);
}

/** An editor on a field of that length. */
class EditedField
{
public:
    EditedField(const MFieldKind& kind, int rows, HostServices& host)
        : m_host(host), m_filled(kind, rows), m_rig(kind)
    {
        m_rig.select(m_filled);
    }

    const FilledField& filled() const { return m_filled; }
    DvMFieldWidget& editor() const { return m_rig.editor(); }
    DvMFieldTable& table() const { return m_rig.table(); }
    HostUndoStack& undoStack() const { return m_host.undoStack(); }
    void undo() const { undoStack().stack().undo(); }
    void redo() const { undoStack().stack().redo(); }

    void press(const char* slot) const
    {
        QMetaObject::invokeMethod(&table(), slot, Qt::DirectConnection);
    }
    /** Selects rows with Shift held. */
    void selectRows(int first, int count) const;
    /** Opens the editor of a cell and answers the line or slider in it. */
    template <class Widget>
    Widget* open(int row) const
    {
        table().setCurrentCell(row, 0);
        table().editItem(table().item(row, 0));
        return table().viewport()->findChild<Widget*>();
    }
    void typeInto(int row, const QString& text) const;

private:
    HostServices& m_host;
    const FilledField m_filled;
    MFieldRig m_rig;
};

void EditedField::selectRows(int first, int count) const
{
    table().setCurrentCell(first, 0);
    QKeyEvent shift(QEvent::KeyPress, Qt::Key_Shift, Qt::ShiftModifier);
    QCoreApplication::sendEvent(&table(), &shift);
    table().clearSelection();
    const QTableWidgetSelectionRange range(first, 0, first + count - 1, table().columnCount() - 1);
    table().setRangeSelected(range, true);
}

void EditedField::typeInto(int row, const QString& text) const
{
    auto* const line = open<QLineEdit>(row);
    line->setText(text);
    line->setModified(true);
    table().closeOpenEditor();
}

/** Deletes a tenth of the rows and brings them back, in the editor. */
Bench::Work deletionIn(EditedField& edited, int rows)
{
    return {[&edited, rows] {
                edited.press("deleteRow");
                MFieldRig::deliver();
                edited.undo();
                MFieldRig::deliver();
                if (edited.table().rowCount() != rows)
                    qFatal("the deleted rows have not come back");
            },
            [&edited, rows] {
                edited.undoStack().clear();
                edited.selectRows(rows / 2, rows / 10);
                TableWindow::settle();
            }};
}

/** The same calls on the field alone. */
Bench::Work deletionOf(const FilledField& filled, int rows)
{
    return {[&filled, rows] {
                SoMField& field = filled.field();
                const int first = rows / 2;
                const int count = rows / 10;
                std::vector<SbString> texts(static_cast<std::size_t>(count));
                for (int i = 0; i < count; ++i)
                    field.get1(first + i, texts[static_cast<std::size_t>(i)]);
                field.deleteValues(first, count);
                field.insertSpace(first, count);
                for (int i = 0; i < count; ++i)
                    field.set1(first + i, texts[static_cast<std::size_t>(i)].getString());
            },
            nullptr};
}

void compareDeleting(const MFieldKind& kind, HostServices& host)
{
    EditedField many(kind, s_rows, host);
    EditedField fewer(kind, s_rows / 10, host);
    const FilledField alone(kind, s_rows);
    const std::vector<double> times = Bench::medians(
        3, {deletionIn(many, s_rows), deletionOf(alone, s_rows), deletionIn(fewer, s_rows / 10)});
    print(QStringLiteral("100,000 of 1,000,000 rows deleted and brought back / field alone"), kind,
          times[0], times[0] / times[1], 1.2);
    print(QStringLiteral("the same, for each row / 10,000 of 100,000 rows"), kind, times[0],
          times[0] / times[2] / 10.0, 1.5);
}

/** The time of a step of the slider in a cell. */
double sliderStepTime(const MFieldKind& kind, int rows, HostServices& host)
{
    const EditedField edited(kind, rows, host);
    auto* const slider = edited.open<QSlider>(1);
    TableWindow::settle();
    SbString before;
    edited.filled().field().get1(1, before);
    const auto step = [slider] {
        const bool isAtEnd = slider->value() == slider->maximum();
        slider->triggerAction(isAtEnd ? QAbstractSlider::SliderToMinimum
                                      : QAbstractSlider::SliderSingleStepAdd);
        MFieldRig::deliver();
    };
    const double time = Bench::medians(100, {{step, TableWindow::settle}}).front();
    SbString after;
    edited.filled().field().get1(1, after);
    if (before == after)
        qFatal("the slider's steps do not reach the field");
    return time;
}

void compareSliderSteps(const MFieldKind& kind, HostServices& host)
{
    const double time = sliderStepTime(kind, s_rows, host);
    print(QStringLiteral("slider step in a cell of 1,000,000 / of 10,000"), kind, time,
          time / sliderStepTime(kind, 10000, host), 1.2);
}

struct Step
{
    const char* name;
    std::function<void()> run;
};

/** What one does with a row, again and again. */
std::vector<Step> stepsAt(int row, EditedField& edited)
{
    const int number = row % 1000;
    return {
        {"going to a row", [&edited, row] { edited.editor().s_accessRow(row + 1); }},
        {"typing", [&edited, row, number] { edited.typeInto(row, QString::number(number)); }},
        {"inserting", [&edited] { edited.press("addRow"); }},
        {"moving up", [&edited] { edited.press("swapUpRow"); }},
        {"undoing", [&edited] { edited.undo(); }},
        {"redoing", [&edited] { edited.redo(); }},
        {"moving down", [&edited] { edited.press("swapDownRow"); }},
        {"deleting", [&edited] { edited.press("deleteRow"); }},
        {"undoing a deletion", [&edited] { edited.undo(); }},
        {"outside change", [&edited, row] { edited.filled().setRow(row, row); }},
        {"a page on",
         [&edited] {
             edited.table().verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
         }},
    };
}

void editForADay(const MFieldKind& kind, HostServices& host)
{
    EditedField edited(kind, s_rows, host);
    double worst = 0.0;
    const char* worstStep = "";
    for (const int row : {3, s_rows / 2, s_rows - 5, 17, s_rows / 3, s_rows / 2 + 1}) {
        for (const Step& step : stepsAt(row, edited)) {
            const auto run = [&step] {
                step.run();
                MFieldRig::deliver();
            };
            const double time = Bench::medians(1, {{run, TableWindow::settle}}).front();
            if (time > worst) {
                worst = time;
                worstStep = step.name;
            }
        }
    }
    const QString name =
        QStringLiteral("a day of editing 1,000,000 rows, %1: ms of the worst step, %2")
            .arg(QLatin1String(kind.name), QLatin1String(worstStep));
    Bench::printAtMost(name.toLatin1().constData(), worst * 1e3, 50.0);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    SoTavrik::init();
    HostServices host;
    for (const MFieldKind& kind : MFieldKind::all()) {
        compareDeleting(kind, host);
        // Numbers alone in their rows have sliders.
        if (kind.hasSlider)
            compareSliderSteps(kind, host);
        editForADay(kind, host);
    }
    return EXIT_SUCCESS;
}

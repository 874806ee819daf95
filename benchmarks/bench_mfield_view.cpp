// Showing multiple-value fields in their editors against a bare view on a model that keeps nothing
// and answers the same texts: selecting fields, and refreshing after changes from outside.

#include "benchmarks/support/Bench.h"
#include "benchmarks/support/EagerTable.h"
#include "benchmarks/support/LazyModel.h"
#include "benchmarks/support/MFieldKind.h"
#include "benchmarks/support/MFieldRig.h"
#include "scenegraph/SoTavrik.h"

#include "FieldEditors/DvMFieldTable.h"
#include "FieldEditors/DvMFieldWidget.h"

#include <QApplication>
#include <QTableView>

#include <cstdlib>

namespace {

const int s_manyRows = 1000000;
const int s_fewRows = 100;
/** Fields change again and again: so many refreshes, one after the other, make one measure. */
const int s_changes = 20;

/** A view on a lazy model, in a window of its own. */
class LazyView
{
public:
    LazyView() : m_window(m_view) { LazyModel::dress(m_view); }

    void select(int rows, int columns, const CellText& text)
    {
        m_model = std::make_unique<LazyModel>(rows, columns, text);
        m_view.setModel(m_model.get());
        m_view.show();
        Bench::waitForPaint(*m_view.viewport());
    }
    void deselect()
    {
        m_view.hide();
        m_view.setModel(nullptr);
        m_model.reset();
        TableWindow::settle();
    }
    void selectOther(const CellText& text)
    {
        m_model->setText(text);
        Bench::waitForPaint(*m_view.viewport());
    }
    void changeAll()
    {
        for (int i = 0; i < s_changes; ++i) {
            m_model->allChanged();
            TableWindow::handleEvents();
        }
    }

private:
    QTableView m_view;
    std::unique_ptr<LazyModel> m_model;
    const TableWindow m_window;
};

/** The editor, the bare view and two fields of the same length. */
class Comparison
{
public:
    Comparison(const MFieldKind& kind, int rows)
        : m_kind(kind), m_rows(rows), m_filled(kind, rows), m_other(kind, rows, rows), m_rig(kind)
    {}

    void compareSelecting(int runs, double aim);
    void compareOther(int runs);
    void compareRefreshing();
    /** The time of a refresh after a change of a row in view. */
    double refreshTime();

private:
    Bench::Work refreshOf(int row);
    void compareWithEager();
    const FilledField& turn() { return (++m_number & 1) != 0 ? m_other : m_filled; }
    void print(const char* work, const std::vector<double>& times, double aim) const;

    const MFieldKind m_kind;
    const int m_rows;
    const FilledField m_filled;
    const FilledField m_other;
    MFieldRig m_rig;
    LazyView m_lazy;
    int m_number = 0;
};

void Comparison::print(const char* work, const std::vector<double>& times, double aim) const
{
    const QString name = QStringLiteral("%1 rows: %2").arg(m_rows).arg(QLatin1String(work));
    Bench::printAtMost(m_kind.measure(name, times[0]).constData(), times[0] / times[1], aim);
}

void Comparison::compareSelecting(int runs, double aim)
{
    const Bench::Work ours = {[this] { m_rig.select(m_filled); }, [this] { m_rig.deselect(); }};
    const Bench::Work lazy = {[this] { m_lazy.select(m_rows, m_kind.columns, m_rig.cellText()); },
                              [this] { m_lazy.deselect(); }};
    print("field selected / bare view", Bench::medians(runs, {ours, lazy}), aim);
}

void Comparison::compareOther(int runs)
{
    const Bench::Work ours = {[this] { m_rig.select(turn()); }, TableWindow::settle};
    const Bench::Work lazy = {[this] { m_lazy.selectOther(m_rig.cellText()); },
                              TableWindow::settle};
    print("another field selected / bare view", Bench::medians(runs, {ours, lazy}), 0.7);
}

Bench::Work Comparison::refreshOf(int row)
{
    const auto refresh = [this, row] {
        for (int i = 0; i < s_changes; ++i) {
            m_filled.setRow(row, ++m_number);
            MFieldRig::deliver();
        }
    };
    return {refresh, TableWindow::settle};
}

void Comparison::compareRefreshing()
{
    m_rig.select(m_filled);
    const int runs = 31;
    const Bench::Work lazy = {[this] { m_lazy.changeAll(); }, TableWindow::settle};
    print("refresh, row out of view / bare view told of all",
          Bench::medians(runs, {refreshOf(m_rows - 1), lazy}), 0.01);
    print("refresh, row in view / bare view told of all",
          Bench::medians(runs, {refreshOf(1), lazy}), 0.1);
    if (m_rows == s_fewRows)
        compareWithEager();
}

void Comparison::compareWithEager()
{
    const int runs = 31;
    EagerTable table(m_kind.columns);
    const TableWindow window(table);
    table.fill(m_rows, m_rig.cellText());
    table.show();
    TableWindow::settle();
    for (const int row : {m_rows - 1, 1}) {
        const Bench::Work eager = {[&] {
                                       for (int i = 0; i < s_changes; ++i) {
                                           m_filled.setRow(row, ++m_number);
                                           table.setTexts(m_rig.cellText());
                                           TableWindow::handleEvents();
                                       }
                                   },
                                   MFieldRig::deliver};
        print(row == 1 ? "refresh, row in view / an item in every cell"
                       : "refresh, row out of view / an item in every cell",
              Bench::medians(runs, {refreshOf(row), eager}), 1.0);
    }
}

double Comparison::refreshTime()
{
    m_rig.select(m_filled);
    return Bench::medians(31, {refreshOf(1)}).front();
}

void compare(const MFieldKind& kind)
{
    Comparison many(kind, s_manyRows);
    many.compareSelecting(11, 3.3);
    many.compareOther(31);
    many.compareRefreshing();
    for (const int rows : {10000, 1000})
        Comparison(kind, rows).compareSelecting(41, 1.15);
    Comparison few(kind, s_fewRows);
    few.compareSelecting(41, 1.15);
    few.compareOther(31);
    few.compareRefreshing();
    const double time = many.refreshTime();
    Bench::printAtMost(
        kind.measure(QStringLiteral("refresh, 1,000,000 rows / 100"), time).constData(),
        time / few.refreshTime(), 1.2);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    SoTavrik::init();
    for (const MFieldKind& kind : MFieldKind::all())
        compare(kind);
    return EXIT_SUCCESS;
}

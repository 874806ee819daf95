// The table of a multiple-value editor against one that has a filled item in every cell, on fields
// of a million values: selecting the field, inserting a row, swapping two rows.

#include "benchmarks/support/Bench.h"
#include "benchmarks/support/EagerTable.h"
#include "benchmarks/support/MFieldKind.h"
#include "benchmarks/support/MFieldRig.h"
#include "lib/HostServices.h"
#include "scenegraph/SoTavrik.h"

#include "FieldEditors/DvMFieldTable.h"
#include "FieldEditors/DvMFieldWidget.h"

#include <QApplication>
#include <QFile>
#include <QUndoStack>

#include <cstdlib>
#include <malloc.h>
#include <unistd.h>

namespace {

const int s_rows = 1000000;
const int s_middle = s_rows / 2;
const int s_runs = 11;

/** How many times faster than with the eager table each step is to be. */
struct Aims
{
    double selecting;
    double inserting;
    double swapping;
};
const Aims s_aims[] = {{250, 500, 1000}, {40, 500, 1000}, {15, 80, 1000}};

/** The bytes of memory that the process uses now: room that is kept and not touched costs none. */
double usedBytes()
{
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the memory in use cannot be read");
    return file.readAll().split(' ').at(1).toDouble() * double(sysconf(_SC_PAGESIZE));
}

/** Both tables on the same field; the eager one is filled once for each step, it takes seconds. */
class Comparison
{
public:
    Comparison(const MFieldKind& kind, const Aims& aims, HostServices& host)
        : m_host(host), m_kind(kind), m_aims(aims), m_filled(kind, s_rows), m_rig(kind),
          m_eager(kind.columns), m_eagerWindow(m_eager)
    {}

    void run()
    {
        printBytes();
        compareSelecting();
        compareInserting();
        compareSwapping();
    }

private:
    void compareSelecting();
    void printBytes();
    void compareInserting();
    void compareSwapping();
    void changeStructure(const char* slot);
    CellText eagerText() const;
    void print(const char* work, double seconds, const Bench::Work& eager, double aim) const;

    HostServices& m_host;
    const MFieldKind m_kind;
    const Aims m_aims;
    const FilledField m_filled;
    MFieldRig m_rig;
    EagerTable m_eager;
    const TableWindow m_eagerWindow;
};

void Comparison::print(const char* work, double seconds, const Bench::Work& eager, double aim) const
{
    const double eagerSeconds = Bench::medians(1, {eager}).front();
    Bench::printAtLeast(m_kind.measure(QLatin1String(work), seconds).constData(),
                        eagerSeconds / seconds, aim);
}

/** Numbers as Coin writes them: the reference stays what it is when the editors read quicker. */
CellText Comparison::eagerText() const
{
    if (!m_kind.hasSlider)
        return m_rig.cellText();
    return [this](int row, int) {
        SbString text;
        m_filled.field().get1(row, text);
        return QString::fromLatin1(text.getString());
    };
}

void Comparison::compareSelecting()
{
    const double time =
        Bench::medians(s_runs, {{[this] { m_rig.select(m_filled); }, [this] { m_rig.deselect(); }}})
            .front();
    const auto eager = [this] {
        m_eager.fill(s_rows, eagerText());
        m_eager.show();
        Bench::waitForPaint(*m_eager.viewport());
    };
    print("field of 1,000,000 values selected", time, {eager, nullptr}, m_aims.selecting);
}

void Comparison::printBytes()
{
    // What the first picture of a table keeps is none of the rows'.
    const FilledField few(m_kind, 10);
    m_rig.select(few);
    m_rig.deselect();
    const double before = usedBytes();
    m_rig.select(m_filled);
    const double bytes = (usedBytes() - before) / s_rows;
    const QString name =
        QStringLiteral("bytes of table per row, %1").arg(QLatin1String(m_kind.name));
    Bench::printAtMost(name.toLatin1().constData(), bytes, 8.0 * (m_kind.columns + 2) + 3.0);
}

/** What the button does, to the end of the picture. */
void Comparison::changeStructure(const char* slot)
{
    QMetaObject::invokeMethod(&m_rig.table(), slot, Qt::DirectConnection);
    MFieldRig::deliver();
}

void Comparison::compareInserting()
{
    const double time = Bench::medians(s_runs, {{[this] { changeStructure("addRow"); },
                                                 [this] {
                                                     m_rig.table().setCurrentCell(s_middle, 0);
                                                     MFieldRig::deliver();
                                                 }}})
                            .front();
    m_host.undoStack().stack().setIndex(0);
    MFieldRig::deliver();
    m_eager.setCurrentCell(s_middle, 0);
    TableWindow::settle();
    const auto eager = [this] {
        m_filled.field().insertSpace(s_middle + 1, 1);
        m_eager.insertFilled(s_middle + 1, eagerText());
        TableWindow::handleEvents();
    };
    print("row inserted in the middle of 1,000,000", time, {eager, nullptr}, m_aims.inserting);
    MFieldRig::deliver();
}

void Comparison::compareSwapping()
{
    const double time = Bench::medians(s_runs, {{[this] { changeStructure("swapDownRow"); },
                                                 [this] {
                                                     m_rig.table().setCurrentCell(s_middle, 0);
                                                     MFieldRig::deliver();
                                                 }}})
                            .front();
    const auto eager = [this] {
        m_rig.editor().swapRows(s_middle, s_middle + 1);
        m_eager.setTexts(eagerText());
        TableWindow::handleEvents();
    };
    print("two of 1,000,000 rows swapped", time, {eager, nullptr}, m_aims.swapping);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    SoTavrik::init();
    HostServices host;
    const Aims* aims = s_aims;
    for (const MFieldKind& kind : MFieldKind::all())
        Comparison(kind, *aims++, host).run();
    return EXIT_SUCCESS;
}

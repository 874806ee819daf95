// The list of the fields of a node with 5,000 of them, against a QTableWidget that is filled with
// the same texts, to the end of the first picture: from the selection of the node, also while a
// filter holds, and from letters typed into the filter. The table filters by hiding rows. The
// list's first picture has what names and types bring, and the first values; the rest of the values
// is read afterwards, between events.

#include "benchmarks/support/Bench.h"
#include "lib/HostFieldList.h"
#include "lib/HostServices.h"
#include "scenegraph/SoTavrik.h"

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/sensors/SoSensorManager.h>

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QTableWidget>

#include <cstdlib>

namespace {

const int s_fields = 5000;
const int s_runs = 15;
const QSize s_size(480, 600);

/** A node of a type that Coin does not know, with fields of the usual kinds. */
QByteArray sceneText()
{
    const std::pair<const char*, const char*> kinds[] = {{"SFFloat", "2.5"},
                                                         {"SFVec3f", "1 2.5 3"},
                                                         {"SFString", "\"a short text\""},
                                                         {"SFBool", "TRUE"},
                                                         {"MFFloat", "[ 1, 2, 3, 4, 5 ]"}};
    QByteArray types;
    QByteArray values;
    for (int i = 0; i < s_fields; ++i) {
        const auto& [type, value] = kinds[i % 5];
        const QByteArray name = "field" + QByteArray::number(i);
        types += QByteArray(i > 0 ? ", " : "") + type + " " + name;
        values += name + " " + value + "\n";
    }
    return "#Inventor V2.1 ascii\nScript { fields [ " + types + " ]\n" + values + "}\n";
}

SoSeparator* buildScene()
{
    const QByteArray text = sceneText();
    SoInput input;
    input.setBuffer(text.constData(), size_t(text.size()));
    SoSeparator* scene = SoDB::readAll(&input);
    if (!scene)
        qFatal("the scene cannot be read");
    scene->ref();
    return scene;
}

void settle()
{
    for (int i = 0; i < 50; ++i)
        QCoreApplication::processEvents();
}

/** The reference. */
class FilledTable : public QTableWidget
{
public:
    FilledTable() : QTableWidget(0, HostFieldModel::ColumnCount)
    {
        verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        resize(s_size);
    }

    void fill(const HostFieldModel& model)
    {
        setRowCount(model.rowCount());
        for (int row = 0; row < model.rowCount(); ++row)
            for (int column = 0; column < model.columnCount(); ++column)
                setItem(row, column,
                        new QTableWidgetItem(model.index(row, column).data().toString()));
    }
    void filter(const QString& text)
    {
        for (int row = 0; row < rowCount(); ++row) {
            bool isFound = false;
            for (int column = 0; column <= HostFieldModel::ValueColumn && !isFound; ++column)
                isFound = item(row, column)->text().contains(text, Qt::CaseInsensitive);
            setRowHidden(row, !isFound);
        }
    }
};

/** The two lists, side by side, and what is measured on them. */
struct Rig
{
    Rig(HostServices& services, SoNode& listed) : list(services), node(listed)
    {
        for (QWidget* widget : {static_cast<QWidget*>(&list), static_cast<QWidget*>(&table)}) {
            widget->resize(s_size);
            widget->show();
            Bench::waitForPaint(*widget);
        }
        settle();
        model.setNode(&node);
    }

    QLineEdit& line() { return *list.findChild<QLineEdit*>(QStringLiteral("fieldFilter")); }
    QWidget& picture()
    {
        return *list.findChild<QTableView*>(QStringLiteral("fieldView"))->viewport();
    }
    void print(const char* what, double baseline, double own, double aim) const
    {
        const QString name = QStringLiteral("5,000 fields of a node, %1 (%2 ms)")
                                 .arg(QLatin1String(what))
                                 .arg(own * 1e3, 0, 'f', 1);
        Bench::printAtLeast(name.toLatin1().constData(), baseline / own, aim);
    }

    HostFieldList list;
    FilledTable table;
    HostFieldModel model; ///< for the table's texts
    SoNode& node;
};

/** The node is selected while the filter holds this text. */
void measureSelection(Rig& rig, const char* what, const QString& filter)
{
    rig.line().setText(filter);
    const auto fill = [&] {
        rig.table.fill(rig.model);
        rig.table.filter(filter);
        Bench::waitForPaint(*rig.table.viewport());
    };
    const auto empty = [&] {
        rig.table.setRowCount(0);
        settle();
    };
    const auto select = [&] {
        rig.list.setNode(&rig.node);
        Bench::waitForPaint(rig.picture());
    };
    const auto deselect = [&] {
        rig.list.setNode(nullptr);
        settle();
    };
    const double baseline = Bench::median(s_runs, fill, empty);
    rig.print(what, baseline, Bench::median(s_runs, select, deselect), 10);
}

/** The filter's text is replaced by another; the table has all texts at hand. */
void measureTyping(Rig& rig, const char* what, const QString& before, const QString& text)
{
    rig.table.fill(rig.model);
    rig.list.setNode(&rig.node);
    const auto filter = [&] {
        rig.table.filter(text);
        Bench::waitForPaint(*rig.table.viewport());
    };
    const auto filterBack = [&] {
        rig.table.filter(before);
        settle();
    };
    const auto type = [&] {
        rig.line().setText(text);
        Bench::waitForPaint(rig.picture());
    };
    const auto typeBack = [&] {
        rig.line().setText(before);
        settle();
    };
    const double baseline = Bench::median(s_runs, filter, filterBack);
    rig.print(what, baseline, Bench::median(s_runs, type, typeBack), 1);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    SoTavrik::init();
    HostServices services;
    SoSeparator* const scene = buildScene();
    SoNode& node = *scene->getChild(0);
    {
        Rig rig(services, node);
        measureSelection(rig, "first picture", {});
        measureSelection(rig, "first picture, filtered by name", QStringLiteral("d49"));
        rig.line().clear();
        measureTyping(rig, "first letters of a filter", {}, QStringLiteral("d49"));
        measureTyping(rig, "other letters", QStringLiteral("short"), QStringLiteral("2.5"));
    }
    scene->unref();
    return EXIT_SUCCESS;
}

// A scene of 100,000 nodes in the scene tree, against the same texts filled into a QTreeWidget:
// from the start to the end of the first picture, and to the turn in which every row is known to
// the view.

#include "benchmarks/support/Bench.h"
#include "lib/HostParents.h"
#include "lib/HostSceneModel.h"
#include "lib/HostText.h"
#include "scenegraph/SoTavrik.h"

#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QApplication>
#include <QTreeView>
#include <QTreeWidget>

#include <cstdlib>

namespace {

const int s_runs = 7;
const QSize s_size(600, 800);
const QStringList s_titles{QStringLiteral("Type"), QStringLiteral("Name"),
                           QStringLiteral("Parents")};

/** A root over `groups` groups of `size` cubes each; no groups at all means all below the root. */
SoSeparator* buildScene(int groups, int size)
{
    auto* root = new SoSeparator;
    root->setName("scene");
    for (int i = 0; i < std::max(groups, 1); ++i) {
        SoSeparator* group = groups > 0 ? new SoSeparator : root;
        if (groups > 0)
            root->addChild(group);
        for (int j = 0; j < size; ++j) {
            auto* cube = new SoCube;
            cube->setName(QByteArray("cube_" + QByteArray::number(j)).constData());
            group->addChild(cube);
        }
    }
    return root;
}

QTreeWidgetItem* filledItem(const SoNode& node)
{
    const QStringList texts{HostText::fromCoin(node.getTypeId().getName()),
                            HostText::fromCoin(node.getName()),
                            QString::number(HostParents::count(node, nullptr))};
    auto* item = new QTreeWidgetItem(texts);
    const SoChildList* children = node.getChildren();
    QList<QTreeWidgetItem*> items;
    for (int i = 0; children && i < children->getLength(); ++i)
        items << filledItem(*(*children)[i]);
    item->addChildren(items);
    return item;
}

void showView(QTreeView& view)
{
    view.setUniformRowHeights(true);
    view.resize(s_size);
    view.show();
    Bench::waitForPaint(*view.viewport());
    // Let the window system's own events pass.
    for (int i = 0; i < 50; ++i)
        QCoreApplication::processEvents();
}

double widgetTime(const SoSeparator& root)
{
    QTreeWidget widget;
    widget.setHeaderLabels(s_titles);
    showView(widget);
    const auto run = [&] {
        QTreeWidgetItem* item = filledItem(root);
        widget.addTopLevelItem(item);
        item->setExpanded(true);
        Bench::waitForPaint(*widget.viewport());
    };
    return Bench::median(s_runs, run, [&widget] {
        widget.clear();
        Bench::waitForPaint(*widget.viewport());
    });
}

double modelTime(SoSeparator& root, bool toTheLastRow)
{
    HostSceneModel model;
    QTreeView view;
    view.setModel(&model);
    showView(view);
    const int rows = root.getNumChildren();
    const auto run = [&] {
        model.setRoot(&root);
        const QModelIndex top = model.index(0, 0);
        view.expand(top);
        Bench::waitForPaint(*view.viewport());
        while (toTheLastRow && model.rowCount(top) < rows)
            Bench::waitForPaint(*view.viewport());
    };
    return Bench::median(s_runs, run, [&] {
        model.setRoot(nullptr);
        Bench::waitForPaint(*view.viewport());
    });
}

void measure(const char* shape, int groups, int size)
{
    SoSeparator* root = buildScene(groups, size);
    root->ref();
    const double baseline = widgetTime(*root);
    const QByteArray name = QByteArray("scene tree, 100,000 nodes, ") + shape;
    Bench::printAtLeast(QByteArray(name + ", first picture").constData(),
                        baseline / modelTime(*root, false), 50);
    Bench::printAtLeast(QByteArray(name + ", every row announced").constData(),
                        baseline / modelTime(*root, true), 5);
    root->unref();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    SoTavrik::init();
    measure("flat", 0, 100000);
    measure("nested", 1000, 100);
    return EXIT_SUCCESS;
}

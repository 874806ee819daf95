#include "app/AppTour.h"

#include "app/AppRobot.h"
#include "app/AppSampleMessages.h"
#include "app/AppSceneView.h"
#include "app/AppWindow.h"

#include "lib/HostFieldModel.h"

#include <Inventor/SbName.h>
#include <Inventor/SoPath.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/lists/SoPathList.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTreeView>

#include <algorithm>

namespace {

/** A part of the scene's size by which something is moved: seen, and still in the picture. */
constexpr float Step = 0.15F;

float sizeOf(const HostScene& scene)
{
    SoGetBoundingBoxAction action(SbViewportRegion(100, 100));
    action.apply(scene.root());
    float x = 0;
    float y = 0;
    float z = 0;
    action.getBoundingBox().getSize(x, y, z);
    return std::max({x, y, z, 1.0F});
}

bool isBelow(const SoPath& path, const char* name)
{
    for (int i = 0; i < path.getLength(); ++i)
        if (path.getNode(i)->getName() == name)
            return true;
    return false;
}

template <class Widget>
Widget* visibleChild(const QWidget& window, const char* name)
{
    for (Widget* widget : window.findChildren<Widget*>(QLatin1String(name)))
        if (widget->isVisible())
            return widget;
    return nullptr;
}

} // namespace

AppTour::AppTour(AppWindow& window, const QString& folder) : m_window(window), m_folder(folder) {}

bool AppTour::run()
{
    if (!m_folder.mkpath(QStringLiteral(".")))
        return fail(QStringLiteral("the folder %1 cannot be made").arg(m_folder.path()));
    const bool passed = waitForScene() && filterFields() && editVector() && undoEdit() &&
                        ignoreField() && undoIgnore() && showConsole();
    if (passed)
        m_message = QStringLiteral("the tour wrote %1 pictures into %2")
                        .arg(QString::number(m_pictures), m_folder.absolutePath());
    return passed;
}

bool AppTour::waitForScene()
{
    m_window.raise();
    const auto isDrawn = [this] {
        m_window.activateWindow(); // a busy window manager may have missed the first request
        return m_window.isActiveWindow() && AppRobot::isDrawn(AppRobot::picture(m_window.view()));
    };
    if (!AppRobot::waitUntil(isDrawn, 30000))
        return fail(QStringLiteral("the scene was not drawn"));
    AppRobot::wait(300);
    return take("scene");
}

bool AppTour::filterFields()
{
    if (!selectNode("Material"))
        return true; // no node with enough fields to be worth it
    auto* line = visibleChild<QLineEdit>(m_window, "fieldFilter");
    auto* table = visibleChild<QTableView>(m_window, "fieldView");
    if (!line || !table)
        return fail(QStringLiteral("no list of fields"));
    AppRobot::click(*line);
    AppRobot::type(QStringLiteral("color"));
    AppRobot::wait(300);
    if (!take("fields-filtered"))
        return false;
    const int found = table->model()->rowCount();
    AppRobot::press(Qt::Key_Escape);
    return (found > 0 && line->text().isEmpty()) ||
           fail(QStringLiteral("the fields were not filtered"));
}

bool AppTour::editVector()
{
    if (!select({{"Transform", "translation"}, {"Translation", "translation"}}))
        return false;
    QLineEdit* line = vectorLine();
    if (!line)
        return fail(QStringLiteral("no line to type a vector into"));
    AppRobot::click(*line);
    AppRobot::press(Qt::Key_A, Qt::ControlModifier);
    const float value = line->text().toFloat() + Step * sizeOf(m_window.scene());
    AppRobot::type(QString::number(double(value), 'g', 3));
    AppRobot::press(Qt::Key_Return);
    return expectChange("typing a vector") && take("vector-typed");
}

bool AppTour::undoEdit()
{
    // An edited vector keeps its new value when its entry is undone: that is how this command is.
    return chooseFromEditMenu("actionUndo") && expectNoChange("undoing the vector") &&
           take("vector-undone");
}

bool AppTour::ignoreField()
{
    if (!select({{"Complexity", "value"}, {"DrawStyle", "style"}}))
        return false;
    QPushButton* button = ignoreButton();
    if (!button)
        return fail(QStringLiteral("no button to ignore the field"));
    AppRobot::click(*button);
    return expectChange("ignoring a field") && take("field-ignored");
}

bool AppTour::undoIgnore()
{
    return chooseFromEditMenu("actionUndo") && expectChange("undoing the ignoring") &&
           take("ignore-undone");
}

bool AppTour::showConsole()
{
    const auto* console = visibleChild<QPlainTextEdit>(m_window, "m_consoleOutput");
    if (!console)
        return true; // none of the plug-ins has one
    AppSampleMessages::say();
    const bool areSaid =
        AppRobot::waitUntil([console] { return AppSampleMessages::areIn(console->toPlainText()); });
    AppRobot::wait(300);
    return (areSaid || fail(QStringLiteral("the console shows no messages"))) && take("console");
}

/** The first of these fields whose node is in the scene. */
bool AppTour::select(const QVector<Target>& targets)
{
    for (const Target& target : targets)
        if (selectNode(target.type))
            return take("node-selected") && selectField(target.field) && take("field-selected");
    return fail(QStringLiteral("no %1 in the scene").arg(QLatin1String(targets.first().type)));
}

SoPath* AppTour::find(const char* type) const
{
    SoSearchAction search;
    search.setType(SoType::fromName(type));
    search.setInterest(SoSearchAction::ALL);
    search.apply(m_window.scene().root());
    SoPathList& found = search.getPaths();
    for (int i = 0; i < found.getLength(); ++i)
        if (isBelow(*found[i], "lamp"))
            return found[i]->copy();
    return found.getLength() > 0 ? found[0]->copy() : nullptr;
}

bool AppTour::selectNode(const char* type)
{
    auto* tree = visibleChild<QTreeView>(m_window, "sceneView");
    SoPath* path = find(type);
    if (!path || !tree)
        return false;
    path->ref();
    const QModelIndex index = m_window.sceneModel().index(*path);
    path->unref();
    tree->scrollTo(index);
    AppRobot::wait(100);
    AppRobot::click(*tree->viewport(), tree->visualRect(index).center());
    return tree->currentIndex() == index;
}

bool AppTour::selectField(const char* name)
{
    auto* table = visibleChild<QTableView>(m_window, "fieldView");
    if (!table)
        return fail(QStringLiteral("no list of fields"));
    const QModelIndexList found =
        table->model()->match(table->model()->index(0, HostFieldModel::NameColumn), Qt::DisplayRole,
                              QLatin1String(name), 1, Qt::MatchExactly);
    if (found.isEmpty())
        return fail(QStringLiteral("no field %1").arg(QLatin1String(name)));
    table->scrollTo(found.first());
    AppRobot::click(*table->viewport(), table->visualRect(found.first()).center());
    AppRobot::wait(300);
    m_before = AppRobot::picture(m_window.view());
    return true;
}

bool AppTour::chooseFromEditMenu(const char* actionName)
{
    auto* action = m_window.findChild<QAction*>(QLatin1String(actionName));
    auto* menu = m_window.findChild<QMenu*>(QStringLiteral("menuEdit"));
    if (!action || !menu)
        return fail(QStringLiteral("no menu entry %1").arg(QLatin1String(actionName)));
    QMenuBar& bar = *m_window.menuBar();
    AppRobot::click(bar, bar.actionGeometry(menu->menuAction()).center());
    if (!AppRobot::waitUntil([menu] { return menu->isVisible(); }))
        return fail(QStringLiteral("the Edit menu did not open"));
    AppRobot::click(*menu, menu->actionGeometry(action).center());
    return true;
}

QLineEdit* AppTour::vectorLine() const
{
    return visibleChild<QLineEdit>(m_window, "SFVec3fLine");
}

QPushButton* AppTour::ignoreButton() const
{
    return visibleChild<QPushButton>(m_window, "m_ignoreButton");
}

bool AppTour::fail(const QString& message)
{
    m_message = QStringLiteral("the tour failed after %1 pictures: %2")
                    .arg(QString::number(m_pictures), message);
    return false;
}

bool AppTour::expectChange(const char* what)
{
    QImage now;
    const bool changed = AppRobot::waitUntil([this, &now] {
        now = AppRobot::picture(m_window.view());
        return AppRobot::differ(now, m_before);
    });
    AppRobot::wait(300);
    m_before = AppRobot::picture(m_window.view());
    return changed ||
           fail(QStringLiteral("%1 did not change the picture").arg(QLatin1String(what)));
}

bool AppTour::expectNoChange(const char* what)
{
    AppRobot::wait(500);
    const bool same = !AppRobot::differ(AppRobot::picture(m_window.view()), m_before);
    return same || fail(QStringLiteral("%1 changed the picture").arg(QLatin1String(what)));
}

bool AppTour::take(const char* name)
{
    const QString file = QStringLiteral("%1-%2.png").arg(++m_pictures).arg(QLatin1String(name));
    const QString path = m_folder.filePath(file);
    return AppRobot::picture(m_window).save(path) ||
           fail(QStringLiteral("%1 cannot be written").arg(path));
}

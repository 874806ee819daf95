#include "tests/system/SessionOnScreen.h"

#include "app/AppRobot.h"
#include "app/AppSceneView.h"

#include "lib/HostFieldModel.h"
#include "lib/HostSettings.h"

#include <Inventor/SoPath.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QLineEdit>
#include <QTableView>
#include <QTreeView>
#include <QtTest>

#include <dlfcn.h>
#include <link.h>

#include <cstring>

namespace {

const char* const Scene = "#Inventor V2.1 ascii\n"
                          "DEF Everything Separator {\n"
                          "  DEF Style DrawStyle { style LINES lineWidth 3 }\n"
                          "  DEF Red Material { diffuseColor 1 0 0 }\n"
                          "  DEF Move Transform { translation 0 0 0 }\n"
                          "  DEF Ball Sphere { radius 2 }\n"
                          "  DEF Gap Translation { translation 6 0 0 }\n"
                          "  DEF Box Cube { width 3 height 3 depth 3 }\n"
                          "  DEF Hat Cone { bottomRadius 0.5 }\n"
                          "}\n";

void clickRow(QAbstractItemView& view, const QModelIndex& index)
{
    QVERIFY(index.isValid());
    view.scrollTo(index);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                      view.visualRect(index).center());
}

int keepLoaded(dl_phdr_info* library, size_t, void*)
{
    if (strstr(library->dlpi_name, "_dri.so") || strstr(library->dlpi_name, "libGLX_"))
        dlopen(library->dlpi_name, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
    return 0;
}

/** Leaks of a graphics driver that is no longer there could not be told from ours. */
void keepDriverLoaded()
{
    dl_iterate_phdr(keepLoaded, nullptr);
}

} // namespace

SessionOnScreen::~SessionOnScreen()
{
    keepDriverLoaded();
}

SessionOnScreen::SessionOnScreen()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       m_folder.filePath(QStringLiteral("settings")));
}

QString SessionOnScreen::write(const QString& name, const QByteArray& text) const
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QFile::WriteOnly) || file.write(text) != text.size())
        qFatal("%s cannot be written", qPrintable(name));
    return file.fileName();
}

void SessionOnScreen::start()
{
    start(Scene);
}

void SessionOnScreen::start(const QByteArray& scene)
{
    HostSettings().clear();
    write(QStringLiteral("scene.iv"), scene);
    restart();
}

void SessionOnScreen::restart()
{
    m_window.reset();
    m_window = std::make_unique<AppWindow>();
    m_window->restoreProfiles();
    m_window->loadPlugins(HostPluginLoader::pluginDirectory());
    m_window->restoreLayout();
    m_window->show();
    waitUntilActive();
    QVERIFY(m_window->openFile(sceneFile()));
    QTRY_VERIFY_WITH_TIMEOUT(AppRobot::isDrawn(AppRobot::picture(m_window->view())), 20000);
    QTest::qWait(300);
}

void SessionOnScreen::waitUntilActive() const
{
    const auto isActive = [this] {
        m_window->activateWindow(); // a busy window manager may have missed the first request
        return m_window->isActiveWindow();
    };
    QTRY_VERIFY_WITH_TIMEOUT(isActive(), 20000);
}

void SessionOnScreen::selectNode(const char* name) const
{
    SoSearchAction search;
    search.setName(name);
    search.apply(m_window->scene().root());
    QVERIFY(search.getPath());
    clickRow(*visible<QTreeView>("sceneView"), m_window->sceneModel().index(*search.getPath()));
    QCOMPARE(m_window->services().selectedNode(), search.getPath()->getTail());
}

void SessionOnScreen::selectField(const char* name) const
{
    auto* view = visible<QTableView>("fieldView");
    const QModelIndex top = view->model()->index(0, HostFieldModel::NameColumn);
    clickRow(*view, view->model()->match(top, Qt::DisplayRole, QLatin1String(name)).value(0));
    QCOMPARE(m_window->services().selectedField(),
             m_window->services().selectedNode()->getField(name));
    QTest::qWait(200); // for the docks to find their places
}

void SessionOnScreen::select(const char* node, const char* field) const
{
    selectNode(node);
    selectField(field);
}

void SessionOnScreen::clickInView(int x, int y) const
{
    QWidget* canvas = m_window->view().canvas();
    QTest::mouseClick(canvas, Qt::LeftButton, Qt::NoModifier,
                      QPoint(canvas->width() * x / 100, canvas->height() * y / 100));
}

QList<QLineEdit*> SessionOnScreen::vectorLines() const
{
    QList<QLineEdit*> lines = m_window->findChildren<QLineEdit*>(QStringLiteral("SFVec3fLine"));
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const QLineEdit* line) { return !line->isVisible(); }),
                lines.end());
    std::sort(lines.begin(), lines.end(), [](const QLineEdit* one, const QLineEdit* other) {
        const QPoint a = one->mapToGlobal(QPoint());
        const QPoint b = other->mapToGlobal(QPoint());
        return a.y() + a.x() < b.y() + b.x();
    });
    return lines;
}

void SessionOnScreen::type(QLineEdit& line, const QString& text)
{
    QTest::mouseClick(&line, Qt::LeftButton);
    QTest::keyClick(&line, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&line, text);
}

QImage SessionOnScreen::picture() const
{
    QImage last;
    QImage now = AppRobot::picture(m_window->view());
    do {
        last = now;
        QTest::qWait(200);
        now = AppRobot::picture(m_window->view());
    } while (AppRobot::differ(now, last));
    return now;
}

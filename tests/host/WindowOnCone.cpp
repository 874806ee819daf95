#include "tests/host/WindowOnCone.h"

#include "lib/HostFieldModel.h"
#include "lib/HostSettings.h"

#include "tests/host/HeightCommand.h"

#include <Inventor/SbName.h>

#include <QPushButton>
#include <QTableView>
#include <QTreeView>
#include <QtTest>

namespace {

const char* const ConeScene = "#Inventor V2.1 ascii\n"
                              "Separator {\n"
                              "  DEF Group Separator { DEF Cone Cone { height 3 } Cube {} }\n"
                              "}\n";

QModelIndex find(const QAbstractItemModel& model, int column, const char* text)
{
    return model
        .match(model.index(0, column), Qt::DisplayRole, QLatin1String(text), 1,
               Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

} // namespace

WindowOnCone::WindowOnCone()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       path(QStringLiteral("settings")));
}

void WindowOnCone::start()
{
    HostSettings().clear();
    write(QStringLiteral("cone.iv"), ConeScene);
    restart();
    QVERIFY(m_window->openFile(file()));
}

void WindowOnCone::restart()
{
    m_window.reset();
    m_window = std::make_unique<HostMainWindow>();
    m_window->restoreProfiles();
    if (m_plugin)
        m_window->pluginsManager().adopt(*m_plugin);
    m_window->setView(new QWidget);
    m_window->restoreLayout();
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
}

QString WindowOnCone::write(const QString& name, const QByteArray& text) const
{
    QFile file(path(name));
    if (!file.open(QFile::WriteOnly) || file.write(text) != text.size())
        qFatal("%s cannot be written", qPrintable(name));
    return file.fileName();
}

QString WindowOnCone::contents(const QString& path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
}

QModelIndex WindowOnCone::row(const char* nodeName) const
{
    return find(*child<QTreeView>("sceneView")->model(), HostSceneModel::NameColumn, nodeName);
}

void WindowOnCone::selectNode(const char* name) const
{
    QVERIFY(row(name).isValid());
    child<QTreeView>("sceneView")->setCurrentIndex(row(name));
}

void WindowOnCone::selectField(const char* name) const
{
    auto* view = child<QTableView>("fieldView");
    const QModelIndex found = find(*view->model(), HostFieldModel::NameColumn, name);
    QVERIFY(found.isValid());
    view->selectRow(found.row());
}

SoCone& WindowOnCone::cone()
{
    return *static_cast<SoCone*>(SoNode::getByName("Cone"));
}

void WindowOnCone::edit() const
{
    m_window->services().pushCommand(new HeightCommand(cone(), 7));
}

void WindowOnCone::answerNextBox(QMessageBox::StandardButton button)
{
    QTimer::singleShot(0, qApp, [button] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    });
}

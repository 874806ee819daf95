// The smallest host: the inspector's window on a scene file, without a 3D view of its own.
//
//     smallest_host scene.iv

#include "lib/HostMainWindow.h"
#include "lib/HostPluginLoader.h"
#include "lib/HostSensorPump.h"

#include "scenegraph/SoTavrik.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    SoTavrik::init();

    // Editors follow their fields by way of Coin's sensor queues, which somebody must run. A
    // program that has a GUI binding of Coin, such as SoQt, leaves this out.
    HostSensorPump pump;
    pump.start();

    HostMainWindow window;
    window.loadPlugins(HostPluginLoader::pluginDirectory());
    window.restoreLayout();
    window.show();
    if (argc > 1)
        window.openFile(QString::fromLocal8Bit(argv[1]));
    return QApplication::exec();
}

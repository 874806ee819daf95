// Connects to a slot that does not exist, and is otherwise content.

#include <QCoreApplication>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QObject::connect(&application, SIGNAL(aboutToQuit()), &application, SLOT(aSlotOfNobody()));
    return 0;
}

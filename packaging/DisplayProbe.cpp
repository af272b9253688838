#include <QGuiApplication>

/// Ends well if Qt can open the display that the program would open. Where it cannot, Qt ends the
/// process while the application object is made, so only a process of its own can find out: socket
/// files left behind, refused permissions and Qt's own choice of platform are all part of the
/// answer.
int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    return 0;
}

// krm510-bench: the bench window of the simulated instrument.
//
//   krm510-bench --root DIR
//
// Talks to the krm510-simd serving DIR over DIR/dev/krm510-sim.sock.
#include "benchwindow.h"

#include <QApplication>
#include <cstdio>
#include <cstring>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QString root;
    const QStringList args = app.arguments();
    for (int i = 1; i < args.size(); i++)
        if (args[i] == "--root" && i + 1 < args.size())
            root = args[++i];
    if (root.isEmpty()) {
        fprintf(stderr, "usage: krm510-bench --root DIR\n");
        return 2;
    }
    BenchWindow window(root + "/dev/krm510-sim.sock");
    window.show();
    return app.exec();
}

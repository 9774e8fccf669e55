#include "app/application.h"

#include "app/appdelegate.h"
#include "app/timing.h"
#include "platform/chooser.h"
#include "quotes/settingsstore.h"

#include <QApplication>
#include <QPainter>

namespace morrowleaf {

namespace {

class PlainContent final : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(40, 44, 90));
        painter.setPen(Qt::white);
        painter.drawText(rect(), Qt::AlignCenter, "Morrowleaf");
    }
};

int runDesktop(int& argc, char** argv, const QStringList& arguments) {
    const WindowSystem windowSystem = chooseWindowSystem();
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    SettingsStore store;
    Platform platform = makePlatform(windowSystem);
    const auto timing = makeSystemTiming();
    AppDelegate delegate({.store = store,
                          .platform = platform,
                          .timing = *timing,
                          .makeQuoteScreen =
                              [](const EditingHooks*) {
                                  return QuoteContent{.widget = new PlainContent, .setBehind = {}};
                              },
                          .makeSettingsView = [](auto, auto) { return new QWidget; },
                          .terminate = [] { QCoreApplication::quit(); }});
    delegate.applicationDidFinishLaunching(arguments);
    return QApplication::exec();
}

} // namespace

int runApplication(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    // The toolkit would read, and refuse, arguments of its own.
    int ownName = argc > 0 ? 1 : 0;
    return runDesktop(ownName, argv, arguments);
}

} // namespace morrowleaf

// A window from which a hand can drag files: zentaro-helper-drag FILE...; without files, a window that only takes the
// focus. It says "shown" when it is there, "taken" each time that what lies under the pointer would take the files, and
// "dropped" when it has them. It runs until it is killed: whoever takes files asks for their names after that.
#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QRasterWindow>
#include <QUrl>

#include <cstdio>

namespace {

void Say(const char* word)
{
    std::puts(word);
    std::fflush(stdout);
}

class Source : public QRasterWindow {
    void exposeEvent(QExposeEvent* event) override
    {
        QRasterWindow::exposeEvent(event);
        if (isExposed() && !std::exchange(m_isShown, true))
            Say("shown");
    }
    void mousePressEvent(QMouseEvent*) override
    {
        auto* const files = new QMimeData;
        QList<QUrl> urls;
        for (const auto& path : QGuiApplication::arguments().mid(1))
            urls.append(QUrl::fromLocalFile(path));
        files->setUrls(urls);
        auto* const drag = new QDrag(this);
        drag->setMimeData(files);
        connect(
            drag, &QDrag::actionChanged, [](Qt::DropAction action) { Say(action == Qt::CopyAction ? "taken" : "no"); });
        Say(drag->exec(Qt::CopyAction) == Qt::CopyAction ? "dropped" : "no");
    }

    bool m_isShown = false;
};

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    Source source;
    if (argc > 1)
        source.setFlag(Qt::X11BypassWindowManagerHint);
    source.setGeometry(0, 0, 60, 40);
    source.show();
    return QGuiApplication::exec();
}

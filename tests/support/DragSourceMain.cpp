// SPDX-License-Identifier: MIT
// Another program, of which a test drags a text away. It says when its window is
// there, and ends when its standard input does.
#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QSocketNotifier>
#include <QWidget>
#include <QWindow>

#include <cstdio>

namespace {

class Source : public QWidget
{
public:
    // The window manager neither places it nor gives it the focus.
    Source()
        : QWidget(nullptr, Qt::BypassWindowManagerHint)
    {
        setGeometry(1000, 40, 100, 80);
    }

protected:
    void mousePressEvent(QMouseEvent*) override
    {
        auto* drag = new QDrag(this);
        auto* text = new QMimeData;
        text->setText(QStringLiteral("text of another program"));
        drag->setMimeData(text);
        drag->exec(Qt::CopyAction);
    }
    void paintEvent(QPaintEvent*) override
    {
        if (!m_shown)
            std::puts("shown");
        m_shown = true;
        std::fflush(stdout);
    }

private:
    bool m_shown = false;
};

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    Source source;
    source.show();
    const QSocketNotifier end(0, QSocketNotifier::Read);
    QObject::connect(&end, &QSocketNotifier::activated, qApp, &QApplication::quit);
    return QApplication::exec();
}

// SPDX-License-Identifier: MIT
// The preview pane: the label alone, and the pane in the live open dialog.
#include "DrawingFolder.h"
#include "HostRequest.h"
#include "VyFileDialogPreview.h"

#include <QSplitter>
#include <QtTest>

namespace {

QPixmap shown(const QLabel* label)
{
    return label->pixmap(Qt::ReturnByValue);
}

QColor shownColor(const QLabel* label)
{
    return shown(label).isNull() ? QColor() : shown(label).toImage().pixelColor(1, 1);
}

QWidget* frame(QFileDialog& dialog)
{
    return dialog.findChild<QWidget*>(QStringLiteral("previewFrame"));
}

QLabel* label(QFileDialog& dialog)
{
    return dialog.findChild<QLabel*>(QStringLiteral("previewLabel"));
}

HostRequest requestForAll()
{
    HostRequest request;
    request.filter = QStringLiteral("All files&*");
    return request;
}

// As large as the user sees it, which on a screen with finer pixels takes more of them.
QSize sizeOf(const QPixmap& picture)
{
    return picture.size() / picture.devicePixelRatio();
}

} // namespace

class PreviewPaneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }

    void scalesToItsWidth_data();
    void scalesToItsWidth();
    void scalesFromTheFullSize();
    void emptyLabelSaysNothing();
    void followsTheCurrentFile();
    void staysWhenAFileHasNoPreview();
    void narrowsWithTheSplitter();
    void tallPictureDoesNotGrowTheDialog();
    void absentWithoutPreview_data();
    void absentWithoutPreview();
    void showsARealDrawing();
};

void PreviewPaneTest::scalesToItsWidth_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QSize>("picture");
    QTest::newRow("smaller") << 105 << QSize(100, 50);
    QTest::newRow("larger than the image") << 405 << QSize(400, 200);
    QTest::newRow("smallest") << 7 << QSize(2, 1);
    QTest::newRow("one pixel") << 6 << QSize(1, 1);
}

void PreviewPaneTest::scalesToItsWidth()
{
    QFETCH(int, width);
    QFETCH(QSize, picture);
    QImage image(200, 100, QImage::Format_RGB32);
    image.fill(Qt::red);
    CVyFileDialogPreview resizedLater(nullptr);
    resizedLater.setImage(image);
    resizedLater.resize(width, 90);
    resizedLater.show();
    QCOMPARE(sizeOf(shown(&resizedLater)), picture);

    CVyFileDialogPreview resizedBefore(nullptr);
    resizedBefore.resize(width, 90);
    resizedBefore.show();
    resizedBefore.setImage(image);
    QCOMPARE(sizeOf(shown(&resizedBefore)), picture);
}

void PreviewPaneTest::scalesFromTheFullSize()
{
    QImage checks(64, 64, QImage::Format_RGB32);
    for (int x = 0; x < 64; ++x) {
        for (int y = 0; y < 64; ++y)
            checks.setPixelColor(x, y, (x + y) % 2 ? Qt::black : Qt::white);
    }
    CVyFileDialogPreview preview(nullptr);
    preview.setImage(checks);
    preview.resize(15, 90);
    preview.show();
    preview.resize(5 + qRound(64 / preview.devicePixelRatioF()), 90); // one to one
    QApplication::processEvents();
    checks.setDevicePixelRatio(preview.devicePixelRatioF());
    QCOMPARE(shown(&preview).toImage().convertToFormat(QImage::Format_RGB32), checks);
}

void PreviewPaneTest::emptyLabelSaysNothing()
{
    static bool warned = false;
    const auto previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
            warned = warned || text.contains(QLatin1String("QImage"));
        });
    CVyFileDialogPreview preview(nullptr);
    preview.show();
    preview.resize(3, 3);
    preview.resize(105, 90);
    qInstallMessageHandler(previous);
    QVERIFY(shown(&preview).isNull());
    QVERIFY(!warned);
}

void PreviewPaneTest::followsTheCurrentFile()
{
    DrawingFolder folder;
    folder.addFolder("folder");
    folder.addPicture("red.png", QSize(100, 60), Qt::red);
    folder.addPicture("blue.png", QSize(60, 100), Qt::blue);
    HostRequest request = requestForAll();
    request.start = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(!frame(dialog)->isVisible());
        QCOMPARE(dialog.findChild<QLabel*>(QStringLiteral("previewCaption"))->text(),
                 QStringLiteral("Preview"));
        auto* splitter = dialog.findChild<QSplitter*>(QStringLiteral("splitter"));
        QCOMPARE(splitter->indexOf(frame(dialog)), splitter->count() - 1);

        QVERIFY(clickFile(dialog, "red.png"));
        QVERIFY(frame(dialog)->isVisible());
        QTRY_COMPARE(shownColor(label(dialog)), QColor(Qt::red));
        QTRY_COMPARE(shown(label(dialog)).width(), label(dialog)->width() - 5);

        QVERIFY(clickFile(dialog, "folder"));
        QVERIFY(!frame(dialog)->isVisible());
        QVERIFY(clickFile(dialog, "blue.png"));
        QVERIFY(frame(dialog)->isVisible());
        QTRY_COMPARE(shownColor(label(dialog)), QColor(Qt::blue));

        dialog.setDirectory(folder.filePath("folder"));
        QTRY_VERIFY(!frame(dialog)->isVisible());
        dialog.reject();
    })});
}

void PreviewPaneTest::staysWhenAFileHasNoPreview()
{
    DrawingFolder folder;
    folder.addPicture("red.png", QSize(100, 60), Qt::red);
    folder.addFile("plain.dwg");
    HostRequest request = requestForAll();
    request.start = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(clickFile(dialog, "plain.dwg"));
        QVERIFY(frame(dialog)->isVisible());
        QVERIFY(shown(label(dialog)).isNull());
        QVERIFY(clickFile(dialog, "red.png"));
        QTRY_COMPARE(shownColor(label(dialog)), QColor(Qt::red));
        QVERIFY(clickFile(dialog, "plain.dwg"));
        QVERIFY(frame(dialog)->isVisible());
        QTRY_COMPARE(shownColor(label(dialog)), QColor(Qt::red));
        dialog.reject();
    })});
}

void PreviewPaneTest::narrowsWithTheSplitter()
{
    DrawingFolder folder;
    folder.addPicture("red.png", QSize(400, 300), Qt::red);
    HostRequest request = requestForAll();
    request.start = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(clickFile(dialog, "red.png"));
        auto* splitter = dialog.findChild<QSplitter*>(QStringLiteral("splitter"));
        for (const int width : {300, 120, 200}) {
            QList<int> sizes = splitter->sizes();
            sizes[1] += sizes[2] - width;
            sizes[2] = width;
            splitter->setSizes(sizes);
            QTRY_COMPARE(splitter->sizes().at(2), width);
            QTRY_COMPARE(shown(label(dialog)).width(), label(dialog)->width() - 5);
        }
        dialog.reject();
    })});
}

void PreviewPaneTest::tallPictureDoesNotGrowTheDialog()
{
    DrawingFolder folder;
    folder.addPicture("tall.png", QSize(20, 4000), Qt::red);
    HostRequest request = requestForAll();
    request.start = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        const QSize before = dialog.size();
        QVERIFY(clickFile(dialog, "tall.png"));
        QTest::qWait(20);
        QCOMPARE(dialog.size(), before);
        dialog.reject();
    })});
}

void PreviewPaneTest::absentWithoutPreview_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::newRow("open, not allowed") << 0x102U;
    QTest::newRow("new") << 0x1U;
    QTest::newRow("save") << 0x4U;
}

void PreviewPaneTest::absentWithoutPreview()
{
    QFETCH(unsigned, type);
    DrawingFolder folder;
    folder.addPicture("red.png", QSize(100, 60), Qt::red);
    HostRequest request = requestForAll();
    request.type = type;
    request.start = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(clickFile(dialog, "red.png"));
        QVERIFY(!frame(dialog) && !label(dialog));
        for (const QLabel* text : dialog.findChildren<QLabel*>())
            QVERIFY(text->text() != QLatin1String("Preview"));
        dialog.reject();
    })});
}

void PreviewPaneTest::showsARealDrawing()
{
    const QString sample = QStringLiteral(VY_SAMPLES_DIR "/drawings/r2018-png8-256x105.dwg");
    if (!QFileInfo::exists(sample))
        QSKIP("the folder shared/samples is not there");
    HostRequest request = requestForAll();
    request.start = QFileInfo(sample).path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(clickFile(dialog, QFileInfo(sample).fileName()));
        QTRY_VERIFY(!shown(label(dialog)).isNull());
        const QSize size = shown(label(dialog)).size();
        QVERIFY(qAbs(size.width() * 105 - size.height() * 256) < 256);
        dialog.reject();
    })});
}

QTEST_MAIN(PreviewPaneTest)
#include "PreviewPaneTest.moc"

// Draws the application icon as PNG files of the given sizes, for the icon
// theme and the window icon. The drawing follows
// resources/icons/com.tandrelo.Vorn.svg shape by shape (256 units square),
// so that the raster sizes and the scalable icon look the same without
// needing an SVG renderer at build time.
//
//   vorn-icon-render OUTDIR SIZE...   writes OUTDIR/SIZE/com.tandrelo.Vorn.png

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>

namespace {

void paintIcon(QPainter& p)
{
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient back(0, 16, 0, 240);
    back.setColorAt(0, QColor(0x4f, 0x8f, 0xe0));
    back.setColorAt(1, QColor(0x1f, 0x4f, 0x9c));
    p.setPen(Qt::NoPen);
    p.setBrush(back);
    p.drawRoundedRect(QRectF(16, 16, 224, 224), 48, 48);
    p.setBrush(Qt::NoBrush);
    QColor rim(Qt::white);
    rim.setAlphaF(0.25f);
    p.setPen(QPen(rim, 1));
    p.drawRoundedRect(QRectF(16.5, 16.5, 223, 223), 47.5, 47.5);

    QPainterPath sheet;
    sheet.moveTo(72, 44);
    sheet.lineTo(154, 44);
    sheet.lineTo(188, 78);
    sheet.lineTo(188, 212);
    sheet.quadTo(188, 220, 180, 220);
    sheet.lineTo(72, 220);
    sheet.quadTo(64, 220, 64, 212);
    sheet.lineTo(64, 52);
    sheet.quadTo(64, 44, 72, 44);
    QLinearGradient paper(0, 44, 0, 220);
    paper.setColorAt(0, Qt::white);
    paper.setColorAt(1, QColor(0xe6, 0xec, 0xf4));
    p.setPen(Qt::NoPen);
    p.setBrush(paper);
    p.drawPath(sheet);
    QPainterPath fold;
    fold.moveTo(154, 44);
    fold.lineTo(154, 70);
    fold.quadTo(154, 78, 162, 78);
    fold.lineTo(188, 78);
    fold.closeSubpath();
    p.setBrush(QColor(0xc4, 0xd2, 0xe6));
    p.drawPath(fold);

    QPen v(QColor(0x1f, 0x4f, 0x9c), 12, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    p.setPen(v);
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(QPolygonF({QPointF(86, 70), QPointF(108, 128), QPointF(130, 70)}));

    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x9f, 0xb3, 0xcf));
    p.drawRoundedRect(QRectF(86, 150, 84, 8), 4, 4);
    p.drawRoundedRect(QRectF(86, 168, 60, 8), 4, 4);
    p.setBrush(QColor(0x2e, 0x9b, 0x57));
    p.drawRoundedRect(QRectF(134, 188, 36, 12), 6, 6);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: vorn-icon-render OUTDIR SIZE...\n");
        return 2;
    }
    const QString out = QString::fromLocal8Bit(argv[1]);
    for (int i = 2; i < argc; ++i) {
        const int size = QByteArray(argv[i]).toInt();
        if (size <= 0 || size > 1024) {
            std::fprintf(stderr, "not a size: %s\n", argv[i]);
            return 2;
        }
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.scale(size / 256.0, size / 256.0);
        paintIcon(painter);
        painter.end();
        const QString dir = QStringLiteral("%1/%2").arg(out).arg(size);
        QDir().mkpath(dir);
        if (!image.save(dir + QStringLiteral("/com.tandrelo.Vorn.png"))) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(dir));
            return 1;
        }
    }
    return 0;
}

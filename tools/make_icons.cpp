// Draws the program's picture in the sizes that desktops ask for.
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {
constexpr int Sizes[] = {16, 22, 24, 32, 48, 64, 128, 256, 512};

QImage Drawn(QSvgRenderer& picture, int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    picture.render(&painter);
    return image;
}

bool Save(const QImage& image, const QString& theme) {
    const QString folder =
        QStringLiteral("%1/%2x%2/apps").arg(theme, QString::number(image.width()));
    return QDir().mkpath(folder) && image.save(folder + "/halvane.png");
}
} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: make_icons PICTURE.svg THEME_FOLDER\n", stderr);
        return 2;
    }
    QSvgRenderer picture(QFile::decodeName(argv[1]));
    const QString theme = QFile::decodeName(argv[2]);
    for (const int size : Sizes)
        if (!picture.isValid() || !Save(Drawn(picture, size), theme)) {
            std::fprintf(stderr, "make_icons: %s cannot be drawn into %s\n", argv[1], argv[2]);
            return 1;
        }
    return 0;
}

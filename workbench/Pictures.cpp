#include "workbench/Pictures.h"

#include <QFile>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include "core/Catalogue.h"
#include "core/Tables.h"

namespace {

// A drawing rendered once per file and size: every refresh of the strip
// shows its pictures again, and rendering them each time costs more than
// the rest of the refresh.
QPixmap Render(const QString& path, QSize size) {
    const QString key = QString("torvane:%1@%2x%3").arg(path).arg(size.width()).arg(size.height());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) return pixmap;
    if (!QFile::exists(path)) return {};
    QSvgRenderer renderer(path);
    if (!renderer.isValid()) return {};
    pixmap = QPixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.end();
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

QString Folder() { return QString::fromStdString(AppPath) + "/BMP_data/"; }

}  // namespace

QString Picture_Path(int16_t type) {
    if (type == kTypeMotor) return Folder() + "motor.svg";
    if (type == kTypeEmpty) return Folder() + "empty.svg";
    QString bitmap = QString::fromLatin1(Type_Bitmap(type).data(), static_cast<int>(Type_Bitmap(type).size()));
    if (bitmap.isEmpty()) return {};
    bitmap.replace('\\', '/');
    bitmap.replace(".bmp", ".svg");
    return QString::fromStdString(AppPath) + bitmap;
}

QPixmap Picture_Type(int16_t type, QSize size) {
    const QString path = Picture_Path(type);
    return path.isEmpty() ? QPixmap() : Render(path, size);
}

QPixmap Picture_Machine(int number, QSize size) {
    if (number < 1 || number > 9) return {};
    return Render(Folder() + QString("machine%1.svg").arg(number), size);
}

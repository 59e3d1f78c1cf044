// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/ui/PictureFile.h"

#include "diagram/Svg.h"
#include "files/FileWriter.h"
#include "files/NativeFiles.h"
#include "kit/FilePath.h"
#include "kit/PicturePainter.h"
#include "kit/UserMessageBox.h"
#include "session/Session.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QImage>
#include <QPainter>

#include <algorithm>

namespace orvane {

namespace {

constexpr int kPointsPerPixel = 2; // of an image, so that it can be printed
constexpr int kMostPoints = 16000; // across or down, which every viewer can show

QString TrPicture(const char* text) { return QCoreApplication::translate("PictureFile", text); }

// Beside the document, named after it.
QString ChooseFile(QWidget& window, const Session& session) {
    const QFileInfo document(QString::fromStdString(session.Path()));
    const QString name = session.Path().empty() ? QStringLiteral("diagram") : document.completeBaseName();
    const QString folder = session.Path().empty() ? QString() : document.path() + QLatin1Char('/');
    const QString lines = TrPicture("Drawings (*.svg)");
    QString kind = lines;
    QString path = QFileDialog::getSaveFileName(
        &window, TrPicture("Save the picture"), folder + name + QStringLiteral(".svg"),
        lines + QStringLiteral(";;") + TrPicture("Images (*.png)"), &kind);
    if (!path.isEmpty() && QFileInfo(path).suffix().isEmpty())
        path += kind == lines ? QStringLiteral(".svg") : QStringLiteral(".png");
    return path;
}

QByteArray PngOf(const PaintedPicture& picture) {
    const diagram::Rect& all = picture.Places.Bounds;
    const double size =
        std::min<double>(kPointsPerPixel, double(kMostPoints) / std::max({all.Width, all.Height, 1}));
    QImage image(QSizeF(all.Width * size, all.Height * size).toSize().expandedTo({1, 1}),
                 QImage::Format_RGB32);
    image.fill(LightPicture().Ground);
    QPainter painter(&image);
    painter.scale(size, size);
    painter.translate(-all.X, -all.Y);
    PaintPicture(painter, picture, {}, QRectF(all.X, all.Y, all.Width, all.Height));
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG"))
        return {};
    return bytes;
}

QByteArray BytesOf(const QString& path, const PaintedPicture& picture) {
    if (QFileInfo(path).suffix().compare(QLatin1String("png"), Qt::CaseInsensitive) == 0)
        return PngOf(picture);
    return QByteArray::fromStdString(diagram::SvgOf(picture.Shown, picture.Places, picture.Fonts));
}

} // namespace

QString SavePicture(QWidget& window, const Session& session, const diagram::LivePicture& picture,
                    const PictureFonts& fonts) {
    const QString path = ChooseFile(window, session);
    if (path.isEmpty())
        return {};
    const QByteArray bytes = BytesOf(path, {picture.Shown(), picture.Places(), fonts});
    if (bytes.isEmpty()) {
        Tell(&window, TrPicture("The picture could not be made."), QMessageBox::Warning);
        return {};
    }
    NativeFiles files;
    const WrittenFile written =
        WriteFile(files, NativePath(path), {std::string_view(bytes.constData(), std::size_t(bytes.size()))});
    if (!written.Failure)
        return path;
    Tell(&window,
         TrPicture("%1 was not saved: %2.").arg(QFileInfo(path).fileName(), Message(*written.Failure)),
         QMessageBox::Warning);
    return {};
}

} // namespace orvane

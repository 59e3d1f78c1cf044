// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/ui/PrintMemory.h"

#include "kit/Settings.h"
#include "text/Sha256.h"

#include <QFileInfo>
#include <QLocale>

namespace orvane {

namespace {

constexpr double kFirstMargin = 15; // millimetres, which every printer leaves room for

class Memory : public QSettings {
  public:
    Memory()
        : QSettings(QFileInfo(Settings().fileName()).path() + QStringLiteral("/print.ini"),
                    QSettings::IniFormat) {}
};

// A path as the name of a group: its own letters would be taken for others.
QString GroupOf(const QString& documentPath) {
    return QString::fromStdString(DigestText(Sha256(documentPath.toStdString())).substr(0, 32));
}

QPageLayout LayoutOf(QPageSize::PageSizeId size, QPageLayout::Orientation orientation) {
    return {QPageSize(size), orientation, QMarginsF(kFirstMargin, kFirstMargin, kFirstMargin, kFirstMargin),
            QPageLayout::Millimeter};
}

} // namespace

PrintNames RememberedNames(const QString& documentPath) {
    if (documentPath.isEmpty())
        return {};
    Memory memory;
    memory.beginGroup(GroupOf(documentPath));
    const auto text = [&](const char* key) { return memory.value(QLatin1String(key)).toString(); };
    return {text("revision"), text("prepared"), text("checked"), text("approved")};
}

void RememberNames(const QString& documentPath, const PrintNames& names) {
    if (documentPath.isEmpty())
        return;
    Memory memory;
    memory.beginGroup(GroupOf(documentPath));
    memory.setValue(QStringLiteral("document"), documentPath);
    memory.setValue(QStringLiteral("revision"), names.Revision);
    memory.setValue(QStringLiteral("prepared"), names.Prepared);
    memory.setValue(QStringLiteral("checked"), names.Checked);
    memory.setValue(QStringLiteral("approved"), names.Approved);
}

QPageLayout RememberedPaper() {
    Memory memory;
    const bool isMetric = QLocale().measurementSystem() != QLocale::ImperialUSSystem;
    const QString size =
        memory.value(QStringLiteral("paper/size"), isMetric ? QStringLiteral("A4") : QStringLiteral("Letter"))
            .toString();
    const bool isLandscape = memory.value(QStringLiteral("paper/landscape")).toBool();
    QPageSize::PageSizeId id = QPageSize::A4;
    for (const QPageSize::PageSizeId known : {QPageSize::Letter, QPageSize::A3, QPageSize::Legal}) {
        if (QPageSize::key(known) == size)
            id = known;
    }
    return LayoutOf(id, isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait);
}

void RememberPaper(const QPageLayout& paper) {
    Memory memory;
    memory.setValue(QStringLiteral("paper/size"), paper.pageSize().key());
    memory.setValue(QStringLiteral("paper/landscape"), paper.orientation() == QPageLayout::Landscape);
}

} // namespace orvane

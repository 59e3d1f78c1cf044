// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/SystemCells.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTextDocument>
#include <QTextTable>
#include <QUuid>

namespace orvane {

namespace {

QString OwnFormat() { return QStringLiteral("application/x-orvane-cells"); }

QString TableOf(const QString& lines) {
    QString html = QStringLiteral("<table>");
    for (const QString& line : lines.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        html += QStringLiteral("<tr>");
        for (const QString& cell : line.split(QLatin1Char('\t')))
            html += QStringLiteral("<td>%1</td>").arg(cell.toHtmlEscaped());
        html += QStringLiteral("</tr>");
    }
    return html + QStringLiteral("</table>");
}

QString TextOf(const QTextTableCell& cell) {
    QStringList blocks;
    for (auto block = cell.begin(); !block.atEnd(); ++block)
        blocks += block.currentBlock().text();
    return blocks.join(QLatin1Char(' '));
}

// The first table of a page; its text where it has none.
QString LinesOf(const QString& html) {
    QTextDocument page;
    page.setHtml(html);
    for (QTextFrame* frame : page.rootFrame()->childFrames()) {
        const auto* table = qobject_cast<QTextTable*>(frame);
        if (table == nullptr)
            continue;
        QString lines;
        for (int row = 0; row < table->rows(); ++row) {
            for (int column = 0; column < table->columns(); ++column)
                lines +=
                    (column == 0 ? QString() : QStringLiteral("\t")) + TextOf(table->cellAt(row, column));
            lines += QLatin1Char('\n');
        }
        return lines;
    }
    return page.toPlainText();
}

} // namespace

SystemCells::SystemCells() : id_(QUuid::createUuid().toByteArray()) {
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] { changed_ = true; });
}

void SystemCells::Put(const QString& lines) {
    auto* data = new QMimeData; // goes to the clipboard
    data->setText(lines);
    data->setHtml(TableOf(lines));
    data->setData(OwnFormat(), id_);
    QGuiApplication::clipboard()->setMimeData(data);
    changed_ = false;
}

// The desktop may tell of our own text late, so that what is there is looked at too.
std::optional<QString> SystemCells::FromOthers() const {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (!changed_ || data == nullptr || data->data(OwnFormat()) == id_)
        return std::nullopt;
    if (data->hasText() && !data->text().isEmpty())
        return data->text();
    if (data->hasHtml())
        return LinesOf(data->html());
    return std::nullopt;
}

} // namespace orvane

// SPDX-License-Identifier: GPL-3.0-or-later
#include "welcome/ui/frmSplash.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace orvane {

namespace {

constexpr qint16 kLastTick = 200;
constexpr int kTickInterval = 50; // milliseconds: the window stays for about ten seconds
constexpr QSize kTextSize{420, 170};

QString Blurb() {
    return QStringLiteral("Orvane is free to use for commercial and non-commercial "
                          "purposes. Naturally, we would prefer you to be using it to program "
                          "our uniquely, amazingly excellent controllers, but you don't have to."
                          "\r\n\r\n"
                          "Either way, we take no responsibility if something bad happens. "
                          "It is up to you to use all programming tools "
                          "responsibly and in moderation."
                          "\r\n\r\n"
                          "A prerequisite for a good, safe, reliable control program is "
                          "good design and planning - Orvane should help with that.");
}

} // namespace

frmSplash::frmSplash(const QPixmap& logo, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(QStringLiteral("Orvane"));
    BuildControls(logo);
    LayOut();
    connect(cmdOK, &QPushButton::clicked, this, &QWidget::close);
    connect(Timer1, &QTimer::timeout, this, &frmSplash::Tick);
    Timer1->start(kTickInterval);
}

void frmSplash::BuildControls(const QPixmap& logo) {
    imgLogo = new QLabel(this);
    imgLogo->setObjectName(QStringLiteral("imgLogo"));
    imgLogo->setPixmap(logo);
    imgLogo->setAlignment(Qt::AlignTop);
    imgLogo->setAccessibleName(tr("Logo"));
    imgLogo->installEventFilter(this);

    // Every key is swallowed, copying included; the text is there to be read.
    txtBlurb = new QPlainTextEdit(Blurb(), this);
    txtBlurb->setObjectName(QStringLiteral("txtBlurb"));
    txtBlurb->setAccessibleName(tr("Disclaimer"));
    txtBlurb->setMinimumSize(kTextSize);
    txtBlurb->setReadOnly(true);
    txtBlurb->setFocusPolicy(Qt::ClickFocus);
    txtBlurb->installEventFilter(this);

    lblURL = new QLabel(tr("Visit the Orvane home page"), this);
    lblURL->setObjectName(QStringLiteral("lblURL"));
    lblURL->setCursor(Qt::PointingHandCursor);
    lblURL->setForegroundRole(QPalette::Link);
    QFont underlined = lblURL->font();
    underlined.setUnderline(true);
    lblURL->setFont(underlined);
    lblURL->installEventFilter(this);

    cmdOK = new QPushButton(tr("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);

    Timer1 = new QTimer(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
}

void frmSplash::LayOut() {
    auto* text = new QHBoxLayout;
    text->addWidget(imgLogo);
    text->addWidget(txtBlurb, 1);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(lblURL);
    bottom->addStretch(1);
    bottom->addWidget(cmdOK);
    auto* all = new QVBoxLayout(this);
    all->addLayout(text, 1);
    all->addLayout(bottom);
}

void frmSplash::Tick() {
    if (++ticks_ <= kLastTick)
        return;
    ticks_ = kLastTick;
    Timer1->stop();
    close();
}

bool frmSplash::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate)
        cmdOK->setFocus();
    return QDialog::event(event);
}

bool frmSplash::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtBlurb)
        return event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (watched == imgLogo && event->type() == QEvent::MouseButtonDblClick)
        close();
    if (watched == lblURL)
        WatchLink(*event);
    return QDialog::eventFilter(watched, event);
}

// A press and its release, both on the link; the second press of a double click is none of its own.
void frmSplash::WatchLink(const QEvent& event) {
    if (event.type() == QEvent::MouseButtonPress) {
        linkPressed_ = true;
    } else if (event.type() == QEvent::MouseButtonRelease && std::exchange(linkPressed_, false)) {
        const QPointF place = static_cast<const QMouseEvent&>(event).position();
        if (lblURL->rect().contains(place.toPoint()))
            Q_EMIT HomePageRequested();
    }
}

} // namespace orvane

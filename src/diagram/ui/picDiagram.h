// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/LivePicture.h"
#include "diagram/Places.h"
#include "kit/PictureFonts.h"
#include "kit/PictureLook.h"

#include <QAbstractScrollArea>

#include <vector>

namespace orvane {

// The picture to look at and to walk about in. It shows what it is given and tells what the user points at.
class picDiagram : public QAbstractScrollArea {
    Q_OBJECT

  public:
    // Both outlive the widget.
    picDiagram(const diagram::LivePicture& picture, const PictureFonts& fonts, QWidget* parent);

    // The picture is another one now. What is in sight stays there.
    void Refresh();
    // Brings into sight what was not marked before.
    void ShowMarks(const PictureMarks& marks);
    // All of the picture, never larger than it is made for.
    Q_INVOKABLE void Fit();
    // The same as long as its texts can be read; else as much as there is room for, around what is marked.
    void FitReadable();
    // About a point of the viewport.
    void Magnify(double factor, const QPointF& about);
    double Zoom() const { return zoom_; }

    // Where a state's box and an edge's label are in the viewport; they are scrolled into view before. Empty
    // for what is not shown.
    Q_INVOKABLE QRect StateRect(int state);
    Q_INVOKABLE QRect EdgeRect(int from, int to);

    const diagram::LivePicture& Picture() const { return picture_; }
    const diagram::Hit& Focused() const { return marks_.Focus; }
    void Focus(const diagram::Hit& hit);
    // In the viewport, as it is scrolled.
    QRect RectOf(const diagram::Hit& hit) const;
    diagram::Hit HitAtViewport(const QPoint& point) const;

  Q_SIGNALS:
    // The cells that are meant, more than one where several events share a line.
    void CellsChosen(const std::vector<orvane::Cell>& cells);
    void CellsOpened(const std::vector<orvane::Cell>& cells); // by a double click
    void JumpWanted(const std::vector<orvane::Cell>& cells);  // by Enter
    void AllWanted();                                         // by the key for all of the machine

  protected:
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    QPointF ToPicture(const QPointF& viewport) const;
    QRectF FromPicture(const diagram::Rect& rect) const;
    const diagram::Rect& PlaceOf(const diagram::Hit& hit) const;
    bool IsShown(const diagram::Hit& hit) const;
    void SetRanges();
    void GoToBegin(); // in the middle where it is smaller than the pane
    void BringIntoSight(const diagram::Hit& hit);
    bool IsOwnKey(const QKeyEvent& key) const;
    bool ZoomBy(const QKeyEvent& key);
    std::vector<Cell> CellsAt(const QPoint& point) const;

    const diagram::LivePicture& picture_;
    const PictureFonts& fonts_;
    PictureMarks marks_;
    double zoom_ = 1;
    QPoint dragged_; // where the middle button was last
};

} // namespace orvane

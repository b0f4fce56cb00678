#include "printout_view.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr double smallestZoom = 0.2;
constexpr double largestZoom = 4;
constexpr double zoomStep = 1.25;

} // namespace

PrintoutView::PrintoutView(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    setAccessibleName(tr("Printout"));
    setFrameShape(QFrame::NoFrame);
    viewport()->setBackgroundRole(QPalette::Dark);
    viewport()->setAutoFillBackground(true);
    verticalScrollBar()->setSingleStep(PrintoutPainter::linePitch);
}

void PrintoutView::setPrintout(PrintoutPainter painter)
{
    m_painter = std::move(painter);
    setAccessibleDescription(m_painter->remarks().join(u'\n'));
    if (m_fitsWidth)
        setZoom(zoomOfWidth());
    else
        updateScrollBars();
    if (const auto marked = m_painter->firstMarkedLine()) {
        const int top = static_cast<int>(m_painter->lineTop(*marked) * m_zoom);
        const int bottom = static_cast<int>(m_painter->lineTop(*marked + 1) * m_zoom);
        QScrollBar &bar = *verticalScrollBar();
        if (top < bar.value() || bottom > bar.value() + viewport()->height())
            bar.setValue(top - viewport()->height() / 3);
    }
    viewport()->update();
}

void PrintoutView::zoomIn()
{
    chooseZoom(m_zoom * zoomStep);
}

void PrintoutView::zoomOut()
{
    chooseZoom(m_zoom / zoomStep);
}

void PrintoutView::zoomToDots()
{
    chooseZoom(1);
}

void PrintoutView::fitWidth()
{
    m_fitsWidth = true;
    setZoom(zoomOfWidth());
}

void PrintoutView::chooseZoom(double zoom)
{
    m_fitsWidth = false;
    setZoom(std::clamp(zoom, smallestZoom, largestZoom));
}

// Keeps what stands at the middle of the view there.
void PrintoutView::setZoom(double zoom)
{
    const double middle = (verticalScrollBar()->value() + viewport()->height() / 2.0) / m_zoom;
    const bool atTop = verticalScrollBar()->value() == 0;
    m_zoom = zoom;
    updateScrollBars();
    if (!atTop)
        verticalScrollBar()->setValue(static_cast<int>(middle * m_zoom - viewport()->height() / 2.0));
    viewport()->update();
    Q_EMIT zoomChanged();
}

double PrintoutView::zoomOfWidth() const
{
    if (!m_painter)
        return 1;
    return std::clamp(viewport()->width() / static_cast<double>(m_painter->size().width()), smallestZoom,
                      1.0);
}

void PrintoutView::updateScrollBars()
{
    const QSizeF size = m_painter ? QSizeF(m_painter->size()) * m_zoom : QSizeF();
    const auto setRange = [](QScrollBar &bar, double content, int page) {
        bar.setPageStep(page);
        // Half a pixel of rounding needs no bar.
        bar.setRange(0, std::max(0, static_cast<int>(std::floor(content)) - page));
    };
    setRange(*horizontalScrollBar(), size.width(), viewport()->width());
    setRange(*verticalScrollBar(), size.height(), viewport()->height());
}

// Where the picture's corner lies in the viewport: a picture narrower than that is in its middle.
QPoint PrintoutView::origin() const
{
    const int width = static_cast<int>(m_painter->size().width() * m_zoom);
    return {std::max((viewport()->width() - width) / 2, 0) - horizontalScrollBar()->value(),
            -verticalScrollBar()->value()};
}

void PrintoutView::paintEvent(QPaintEvent *event)
{
    if (!m_painter)
        return;
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(origin());
    painter.scale(m_zoom, m_zoom);
    const QRect exposed = event->rect().translated(-origin());
    const QRectF dots(exposed.x() / m_zoom, exposed.y() / m_zoom, exposed.width() / m_zoom,
                      exposed.height() / m_zoom);
    m_painter->paint(painter, dots.toAlignedRect());
}

void PrintoutView::resizeEvent(QResizeEvent *)
{
    if (m_fitsWidth)
        setZoom(zoomOfWidth());
    else
        updateScrollBars();
}

void PrintoutView::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    if (event->angleDelta().y() > 0)
        zoomIn();
    else if (event->angleDelta().y() < 0)
        zoomOut();
}

void PrintoutView::keyPressEvent(QKeyEvent *event)
{
    QScrollBar &bar = *verticalScrollBar();
    switch (event->key()) {
    case Qt::Key_Home:
        return bar.setValue(bar.minimum());
    case Qt::Key_End:
        return bar.setValue(bar.maximum());
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

QSize PrintoutView::sizeHint() const
{
    return {480, 640};
}

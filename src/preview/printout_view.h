#pragma once

#include "printout_painter.h"

#include <QAbstractScrollArea>

#include <optional>

/* Shows a receipt that can be zoomed and scrolled. Only what is seen is drawn. */
class PrintoutView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit PrintoutView(QWidget *parent = nullptr);

    /* Shows another printout at the place and size of the one before; a marked line is brought into sight. */
    void setPrintout(PrintoutPainter painter);

    /* What is shown; null before the first printout. */
    const PrintoutPainter *painter() const { return m_painter ? &*m_painter : nullptr; }

    /* Screen pixels for each printer dot. */
    double zoom() const { return m_zoom; }
    bool fitsWidth() const { return m_fitsWidth; }

public Q_SLOTS:
    void zoomIn();
    void zoomOut();

    /* One screen pixel for each printer dot. */
    void zoomToDots();

    /* As wide as the window, and no larger than one pixel for each dot; so until another zoom is chosen. */
    void fitWidth();

Q_SIGNALS:
    void zoomChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    QSize sizeHint() const override;

private:
    void chooseZoom(double zoom);
    void setZoom(double zoom);
    double zoomOfWidth() const;
    void updateScrollBars();
    QPoint origin() const;

    std::optional<PrintoutPainter> m_painter;
    double m_zoom = 1;
    bool m_fitsWidth = true;
};

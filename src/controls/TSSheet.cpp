#include "controls/TSSheet.h"

#include "controls/TSTheme.h"

#include <QApplication>
#include <QBitmap>
#include <QEvent>
#include <QMainWindow>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QWindow>

namespace {

/// By then a window manager has done what it does about the keys, in milliseconds.
constexpr int settled = 250;

} // namespace

TSSheet::TSSheet(QWidget *parent) : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
{
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_TranslucentBackground);
    if (parent)
        parent->window()->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &TSSheet::giveKeysBack,
            Qt::QueuedConnection);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &TSSheet::keepKeys, Qt::QueuedConnection);
}

TSSheet::~TSSheet()
{
    // A sheet that goes while it is up hears of no hiding.
    delete m_veil;
}

QPushButton *TSSheet::newButton(const char *name, const QString &title)
{
    auto *button = new QPushButton(title, this);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(title);
    button->setAutoDefault(false);
    return button;
}

int TSSheet::topInset() const
{
    const auto *window = qobject_cast<QMainWindow *>(parentWidget()->window());
    return window && window->centralWidget() ? window->centralWidget()->y() : 0;
}

bool TSSheet::eventFilter(QObject *object, QEvent *event)
{
    if (isVisible() && (event->type() == QEvent::Move || event->type() == QEvent::Resize))
        place();
    return QDialog::eventFilter(object, event);
}

void TSSheet::setVisible(bool visible)
{
    m_isLeaving = false;
    const bool hadKeys = isVisible() && isActiveWindow();
    QDialog::setVisible(visible);
    if (hadKeys && !visible && parentWidget())
        leaveKeysTo(parentWidget()->window());
}

void TSSheet::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    dimParent();
    place();
    m_hasHadKeys = isActiveWindow();
    // When it takes the place of a sheet that is just going, some window managers leave the keys with
    // neither.
    activateWindow();
    QTimer::singleShot(settled, this, &TSSheet::takeKeys);
}

void TSSheet::takeKeys()
{
    if (QApplication::activeModalWidget() == this && !isActiveWindow())
        activateWindow();
}

void TSSheet::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow())
        return;
    m_hasHadKeys = true;
    if (m_isLeaving)
        QTimer::singleShot(0, this, &TSSheet::endLeaving);
}

/// A click beside the sheet gives the keys to a window that takes none as long as the sheet is up. Some
/// window managers listen to an answer only once the click itself has come through.
void TSSheet::keepKeys()
{
    if (!isVisible() || m_isLeaving || !isOver(QApplication::activeWindow()))
        return;
    takeKeys();
    QTimer::singleShot(settled, this, [this] {
        if (isOver(QApplication::activeWindow()))
            takeKeys();
    });
}

bool TSSheet::isOver(const QWidget *window) const
{
    for (const QWidget *below = parentWidget(); window && below; below = below->parentWidget())
        if (below == window)
            return true;
    return false;
}

/// What the window manager does and what the sheet does cross each other on their way: the word that it has
/// the keys may come when it is gone, and no other word follows.
void TSSheet::giveKeysBack()
{
    if (!isVisible() && parentWidget() && QApplication::activeWindow() == this)
        QApplication::setActiveWindow(parentWidget()->window());
}

void TSSheet::leave()
{
    if (!isVisible() || m_isLeaving)
        return;
    if (m_hasHadKeys) {
        hide();
        return;
    }
    m_isLeaving = true;
    QTimer::singleShot(2 * settled, this, &TSSheet::endLeaving);
}

void TSSheet::endLeaving()
{
    if (m_isLeaving)
        hide();
}

void TSSheet::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    delete m_veil;
    QTimer::singleShot(settled, this, &TSSheet::giveKeysBack);
}

/// Of two sheets that go at once a window manager may give the keys to the lower one, and then to nobody.
/// Whoever has gone to another program is left there.
void TSSheet::leaveKeysTo(QWidget *window)
{
    QTimer::singleShot(settled, window, [window] {
        QWidget *below = window;
        while (below && !below->isVisible())
            below = below->parentWidget() ? below->parentWidget()->window() : nullptr;
        if (below && !QGuiApplication::focusWindow())
            below->activateWindow();
    });
}

void TSSheet::dimParent()
{
    if (!parentWidget() || m_veil)
        return;
    m_veil = new QWidget(parentWidget()->window());
    m_veil->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_veil->setAutoFillBackground(true);
    constexpr int darkness = 70;
    QPalette shade;
    shade.setColor(QPalette::Window, QColor(0, 0, 0, darkness));
    m_veil->setPalette(shade);
    m_veil->show();
}

void TSSheet::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    cutCorners();
    place();
}

/// Under X11 a compositor may be missing, and then what a window leaves clear is black. The cut takes about
/// what stays clear all the same, so that where one runs the edge is as soft as it was drawn.
void TSSheet::cutCorners()
{
    if (QGuiApplication::platformName() != u"xcb")
        return;
    QBitmap covered(size());
    covered.clear();
    QPainter painter(&covered);
    painter.setPen(QPen(Qt::color1, 1.5));
    painter.setBrush(Qt::color1);
    painter.drawPath(shape());
    painter.end();
    setMask(covered);
}

/// Straight at the top, where it hangs.
QPainterPath TSSheet::shape() const
{
    const double radius = 2.0 * TSTheme::radius;
    QPainterPath shape;
    shape.addRoundedRect(QRectF(rect()).adjusted(0.5, -radius, -0.5, -0.5), radius, radius);
    return shape;
}

void TSSheet::place()
{
    if (!parentWidget())
        return;
    const QWidget *window = parentWidget()->window();
    if (m_veil)
        m_veil->setGeometry(window->rect());
    move(window->mapToGlobal(QPoint((window->width() - width()) / 2, topInset())));
}

void TSSheet::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(TSTheme::outline(palette()), 1));
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawPath(shape());
    painter.drawLine(QPointF(0, 0.5), QPointF(width(), 0.5));
}

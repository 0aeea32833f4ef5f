#include "instructions.h"
#include "companion.h"
#include "pages.h"
#include "topics.h"
#include "ui_instructions.h"

#include <QMouseEvent>
#include <utility>

namespace {

QString helpText(const Topic &topic)
{
    return QStringLiteral("<b>%1</b><br>%2")
        .arg(QLatin1String(topic.heading), QLatin1String(topic.body));
}

QString buttonsPage()
{
    QString rows;
    for (const Topic &topic : topics) {
        rows += QStringLiteral("<tr><td><b>%1</b></td><td>%2</td></tr>")
                    .arg(QLatin1String(topic.heading), QLatin1String(topic.body));
    }
    return QStringLiteral("<h2>Buttons and Other Parts</h2>"
                          "<p>The topics of the page Map, as text.</p>"
                          "<table cellspacing=\"0\" cellpadding=\"6\">") %
           rows % QStringLiteral("</table>");
}

// The smallest rectangle around the named widgets, in the window's coordinates.
QRect placeOf(const QString &names, const QWidget &window)
{
    QRect place;
    for (const QString &name : names.split(QLatin1Char('+'))) {
        if (const auto *widget = window.findChild<QWidget *>(name))
            place |= QRect(widget->mapTo(&window, QPoint()), widget->size());
    }
    // What is not in use is parked beside the window, out of the picture.
    return place & window.rect();
}

QRect scaled(const QRect &place, qreal factor)
{
    return QRectF(place.topLeft() * factor, QSizeF(place.size()) * factor).toRect();
}

} // namespace

instructions::instructions(QWidget *mainWindow,
                           std::function<std::unique_ptr<QWidget>()> freshWindow)
    : QDialog(nullptr, Qt::Window),
      ui(std::make_unique<Ui::instructions>()),
      freshMainWindow(std::move(freshWindow))
{
    ui->setupUi(this);
    Companion::settle(*this, mainWindow);
}

instructions::~instructions() = default;

QAbstractButton *instructions::closeButton() const
{
    return ui->closeButton;
}

// No early exit: each hot spot is asked, and hot spots do not overlap.
void instructions::mousePressEvent(QMouseEvent *event)
{
    for (const HotSpot &spot : hotSpots) {
        if (event->button() == Qt::LeftButton && spot.label->underMouse())
            ui->help->setText(spot.text);
    }
}

// Filled when first looked at, which is once in a run of the program.
void instructions::showEvent(QShowEvent *event)
{
    if (!filled) {
        filled = true;
        fillPages();
        drawMap(*freshMainWindow());
    }
    QDialog::showEvent(event);
}

void instructions::fillPages()
{
    ui->startingText->setHtml(QLatin1String(Pages::starting));
    ui->buttonsText->setHtml(buttonsPage());
    ui->optionsText->setHtml(QLatin1String(Pages::options));
    for (const QTextEdit *page :
         {ui->startingText, static_cast<QTextEdit *>(ui->buttonsText), ui->optionsText})
        page->document()->setDocumentMargin(16);
}

void instructions::drawMap(QWidget &subject)
{
    const QSize room = ui->map->minimumSize();
    const QSize size = subject.size().scaled(room, Qt::KeepAspectRatio);
    const qreal factor = qreal(size.width()) / subject.width();

    QPixmap picture = subject.grab().scaled(size * devicePixelRatioF(), Qt::IgnoreAspectRatio,
                                            Qt::SmoothTransformation);
    picture.setDevicePixelRatio(devicePixelRatioF());
    ui->map->setPixmap(picture);

    for (const Topic &topic : topics) {
        for (const QString &names : QString::fromLatin1(topic.spots).split(QLatin1Char(' '))) {
            const QRect place = placeOf(names, subject);
            if (place.isEmpty())
                continue;
            auto *label = new QLabel(ui->map);
            label->setGeometry(scaled(place, factor));
            label->setCursor(Qt::PointingHandCursor);
            label->setAccessibleName(QString::fromLatin1(topic.heading).trimmed());
            label->show();
            hotSpots.push_back({label, helpText(topic)});
        }
    }
}

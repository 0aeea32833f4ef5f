#include "instructions.h"
#include "companion.h"
#include "pages.h"
#include "picture.h"
#include "topics.h"
#include "ui_instructions.h"
#include "words.h"

#include <QMouseEvent>
#include <QRadioButton>
#include <algorithm>
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

bool hasGround(const QWidget &widget)
{
    const QString sheet = widget.styleSheet();
    return sheet.contains(QLatin1String("background-color")) &&
           !sheet.contains(QLatin1String("transparent"));
}

// What can be seen of a widget, in its own coordinates: plain labels and radio buttons are
// mostly larger than their words.
QRect seenOf(const QWidget &widget)
{
    QRect seen = widget.rect();
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        if (!label->text().isEmpty() && !hasGround(*label))
            seen &= wordsOf(*label);
    } else if (qobject_cast<const QRadioButton *>(&widget)) {
        seen.setWidth(qMin(seen.width(), widget.sizeHint().width()));
    }
    return seen;
}

// A part of the window that is to be framed, in the window's coordinates.
struct Part
{
    const Topic *topic;
    QRect place;
    bool hasEdge; // a button or a panel: the frame lies on it

    QRect framed(int distance) const
    {
        const int d = hasEdge ? 0 : distance;
        return place.adjusted(-d, -d, d, d);
    }
};

Part partOf(const Topic &topic, const QString &names, const QWidget &window)
{
    Part part{&topic, {}, true};
    for (const QString &name : names.split(QLatin1Char('+'))) {
        const auto *widget = window.findChild<QWidget *>(name);
        if (!widget)
            continue;
        const QRect seen = seenOf(*widget);
        part.hasEdge = part.place.isNull() && seen == widget->rect();
        part.place |= seen.translated(widget->mapTo(&window, QPoint()));
    }
    // What is not in use is parked beside the window, out of the picture.
    part.place &= window.rect();
    return part;
}

// A frame keeps off the words as far as its neighbors let it.
QRect frameOf(const Part &part, const std::vector<Part> &all)
{
    const auto touches = [&](int distance) {
        const QRect around = part.framed(distance).adjusted(-1, -1, 1, 1);
        return std::any_of(all.begin(), all.end(), [&](const Part &other) {
            return &other != &part && around.intersects(other.framed(distance));
        });
    };
    int distance = 5; // px of the window
    while (distance > 0 && touches(distance))
        --distance;
    return part.framed(distance);
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
    ui->fingerMap->setPixmap(picture(":/new/prefix1/fingerMap.png"));
    ui->touchText->setHtml(QLatin1String(Pages::touchTyping));
    for (const QTextEdit *page : {ui->startingText, static_cast<QTextEdit *>(ui->buttonsText),
                                  ui->optionsText, ui->touchText})
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

    std::vector<Part> parts;
    for (const Topic &topic : topics) {
        for (const QString &names : QString::fromLatin1(topic.spots).split(QLatin1Char(' '))) {
            const Part part = partOf(topic, names, subject);
            if (!part.place.isEmpty())
                parts.push_back(part);
        }
    }
    for (const Part &part : parts) {
        auto *label = new QLabel(ui->map);
        label->setGeometry(scaled(frameOf(part, parts) & subject.rect(), factor));
        label->setCursor(Qt::PointingHandCursor);
        label->setAccessibleName(QString::fromLatin1(part.topic->heading).trimmed());
        label->show();
        hotSpots.push_back({label, helpText(*part.topic)});
    }
}

#include "player.h"

#include "files.h"
#include "tambrel.h"
#include "ui_tambrel.h"
#include "virtualtime.h"

#include <QtTest>
#include <cstdlib>
#include <unistd.h>

namespace {

constexpr int afterActMs = 3;
constexpr int slideMs = 1200;
constexpr int restMs = 2000;
constexpr int busyRestMs = 16000; // the longest closing wave and its shadows
constexpr unsigned hangSeconds = 100;

QStringList *warnings = nullptr;

void takeWarning(QtMsgType, const QMessageLogContext &, const QString &message)
{
    // The offscreen platform raises nothing, and has no screen that a color could be picked from.
    if (message.startsWith("This plugin does not support") ||
        message.startsWith("QImage::pixel: coordinate (0,0)"))
        return;
    fprintf(stderr, "%s\n", qPrintable(message));
    if (warnings)
        warnings->append("warning: " + message);
}

// Ten frames a second: the repaints of smooth slides would be most of the work.
class Frames : public QAnimationDriver
{
public:
    explicit Frames(QObject *parent) : QAnimationDriver(parent)
    {
        timer.setInterval(100);
        connect(&timer, &QTimer::timeout, this, &Frames::advance);
        connect(this, &Frames::started, &timer, QOverload<>::of(&QTimer::start));
        connect(this, &Frames::stopped, &timer, &QTimer::stop);
    }

private:
    QTimer timer;
};

// What a panel of the Advanced Options consists of, behind the button that opens it.
const QStringList panels[] = {
    {"menuColorMadness", "tabWidget", "frameTabShield", "frameXRay", "frameWallpaper",
     "swapGradient7"},
    {"menuKestrixKeyboard", "frameKestrixKeyboard", "openImageFinished",
     "clearKestrexKeyboardImage", "openAudioPulse"},
    {"menuFonts", "frameFonts", "fontComboBoxLowercase", "fontComboBoxUppercase"},
    {"menuPhotos", "framePhotos", "framePhotosMain", "openImageKeys", "clearKeysImage",
     "openImageKeypress", "clearKeypressImage", "openImageHighlight", "clearHighlightImage",
     "openImageMouseover", "clearMouseoverImage", "openImageMain", "clearMainImage", "xRayVision"},
    {"menuShadows", "frameShadows"},
    {"menuAudio", "frameAudio", "openAudio"},
    {"menuGamePlay", "frameGamePlayS", "frameGamePlayS_2", "frameGamePlayCM", "swapGradient27"},
    {"lineHighOptions", "frameLinehighlight", "swapGradient6"},
};

const QStringList effects{"explosion",    "butterfly", "birdsdancing", "angryE",    "useUploaded",
                          "finishedNone", "fadeOut",   "fadeOutIn",    "effectNone"};
const QStringList play{"start",
                       "start",
                       "stop",
                       "soft",
                       "strict",
                       "goldenHighlight",
                       "lineHighlight",
                       "keyFlash",
                       "keyConstant",
                       "closeX",
                       "hideNonVitals",
                       "rcNone",
                       "rcEnglish",
                       "rcRussian",
                       "rcBoth",
                       "helpButton",
                       "pbForwardVarious",
                       "pbReverseVarious",
                       "pbRandomVarious",
                       "pbForwardConsonants",
                       "pbReverseConsonants",
                       "pbForwardNumberLine",
                       "pbReverseNumberLine",
                       "pbRandomNumberLine",
                       "pbForwardAll",
                       "pbReverseAll",
                       "pbRandomAll"};

using VirtualTime::pass;

// Where the mouse finds it, in its window; null if something else is there, or nothing.
QPoint spot(const QWidget *widget)
{
    if (!widget || !widget->isVisible())
        return {};
    const QWidget *top = widget->window();
    const QPoint center = widget->mapTo(top, widget->rect().center());
    const QWidget *there = top->childAt(center);
    return there && (there == widget || widget->isAncestorOf(there)) ? center : QPoint();
}

// The open windows beside the main one, in an order that does not change from run to run.
QWidgetList others(const QWidget *window)
{
    QWidgetList list;
    for (QWidget *each : QApplication::topLevelWidgets()) {
        if (each != window && each->isVisible())
            list.append(each);
    }
    std::sort(list.begin(), list.end(), [](const QWidget *a, const QWidget *b) {
        return QString(a->windowTitle() % a->objectName()) <
               QString(b->windowTitle() % b->objectName());
    });
    return list;
}

QColorDialog *dialogOf(const QString &title)
{
    for (QWidget *each : QApplication::topLevelWidgets()) {
        if (auto *dialog = qobject_cast<QColorDialog *>(each)) {
            if (dialog->isVisible() && dialog->windowTitle() == title)
                return dialog;
        }
    }
    return nullptr;
}

} // namespace

Player::Player(const QStringList &leftOut, unsigned seed) : without(leftOut), random(seed)
{
    QDir::setCurrent(folder.path());
    (new Frames(qApp))->install();
    warnings = &faults;
    qInstallMessageHandler(takeWarning);
    open();
    for (auto each = widgets.cbegin(); each != widgets.cend(); ++each) {
        const QString &name = each.key();
        if (name.startsWith("qt_") || name.isEmpty() || name == "pbQuit")
            continue;
        const bool inPanel = std::any_of(std::begin(panels), std::end(panels), [&](auto &pieces) {
            return std::any_of(pieces.begin() + 1, pieces.end(), [&](const QString &piece) {
                return name == piece || widgets.value(piece)->isAncestorOf(each.value());
            });
        });
        const bool button = qobject_cast<QAbstractButton *>(each.value());
        if (button)
            buttons << name;
        else if (qobject_cast<QLabel *>(each.value()))
            labels << name;
        else if (qobject_cast<QSlider *>(each.value()) || qobject_cast<QSpinBox *>(each.value()) ||
                 qobject_cast<QComboBox *>(each.value()))
            fields << name;
        if (inPanel)
            inPanels << (button ? QStringList{name, name, name} : QStringList{name});
        if (name.startsWith("colorPicker") || name == "textShadowColorBox")
            swatches << name;
    }
    for (QStringList *list : {&buttons, &labels, &inPanels, &swatches, &fields})
        list->sort();
    addFamilies();
    act("click savePaint paint.txt");
    act("click saveKeyboard keyboard.txt");
    act("settle");
    Files::make(folder.path());
}

Player::~Player()
{
    window.reset();
    warnings = nullptr;
}

void Player::open()
{
    if (!window) {
        window = std::make_unique<tambrel>(
            nullptr, tambrel::Outside{std::make_unique<SilentPlayer>(), nullptr});
        window->options();
        for (QWidget *widget : window->findChildren<QWidget *>())
            widgets.insert(widget->objectName(), widget);
    }
    window->openTambrel();
}

// ---- acts

void Player::addFamilies()
{
    const auto leftClick = [this](const QString &what) { click(what, Qt::LeftButton, false); };
    const auto dialogAct = [this](const char *word, int weight, auto perform) {
        families.push_back({word, weight, [this] { return anyDialog(); },
                            [perform](const QString &title) {
                                if (QColorDialog *dialog = dialogOf(title))
                                    perform(*dialog);
                            }});
    };
    const auto keyAct = [this](const char *word, int weight, auto perform) {
        families.push_back({word, weight, [this] { return anyKey(); }, perform});
    };
    families = {
        {"click", 60, [this] { return anyReachable(buttons); }, leftClick},
        {"click", 50, [this] { return withFile(any(inPanels)); }, leftClick},
        {"click", 25, [this] { return any(swatches); }, leftClick},
        {"click", 15, [this] { return any(effects); }, leftClick},
        {"click", 50, [this] { return anyReachable(play); }, leftClick},
        {"click", 20, [this] { return anyReachable(labels); }, leftClick},
        {"click", 15,
         [this] {
             const QWidgetList windows = others(window.get());
             QStringList names;
             for (const QWidget *each : windows) {
                 if (!qobject_cast<const QColorDialog *>(each)) {
                     for (const auto *button : each->findChildren<QAbstractButton *>())
                         names << button->objectName();
                 }
             }
             return names.isEmpty() ? QString() : any(names);
         },
         leftClick},
        {"doubleclick", 5, [this] { return anyReachable(buttons); },
         [this](const QString &what) { click(what, Qt::LeftButton, true); }},
        {"rightclick", 5, [this] { return any(inPanels); },
         [this](const QString &what) { click(what, Qt::RightButton, false); }},
        {"point", 10,
         [this] {
             QWidgetList windows = others(window.get());
             windows.append(window.get());
             const QWidget *on = windows[draw(windows.size())];
             return QString("%1 %2 %3")
                 .arg(on->objectName())
                 .arg(draw(on->width()))
                 .arg(draw(on->height()));
         },
         [this](const QString &what) {
             const QStringList words = what.split(' ');
             const QWidgetList windows = others(window.get()) << window.get();
             for (QWidget *on : windows) {
                 if (on->objectName() == words[0])
                     QTest::mouseClick(on->windowHandle(), Qt::LeftButton, {},
                                       {words[1].toInt(), words[2].toInt()});
             }
         }},
        {"hover", 60, [this] { return QString("shield%1").arg(1 + draw(Keys::capCount)); },
         [this](const QString &name) { hover(find(name)); }},
        {"hover", 40, [this] { return anyReachable(labels); },
         [this](const QString &name) { hover(find(name)); }},
        {"away", 15, [] { return QString("-"); },
         [](const QString &) { QCursor::setPos(-9000, 0); }},
        {"drag", 8, [this] { return QString(anyReachable(buttons) % " " % anyReachable(labels)); },
         [this](const QString &what) {
             const QPoint from = spot(find(what.section(' ', 0, 0)));
             const QPoint to = spot(find(what.section(' ', 1)));
             if (from.isNull() || to.isNull())
                 return;
             hover(find(what.section(' ', 0, 0)));
             QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, from);
             QTest::mouseMove(window->windowHandle(), to);
             QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, to);
         }},
        {"play", 30, [this] { return QString("%1 %2").arg(1 + draw(30)).arg(draw(60)); },
         [this](const QString &what) {
             for (int i = what.section(' ', 0, 0).toInt(); i > 0; --i) {
                 enterTarget();
                 pass(what.section(' ', 1).toInt());
             }
         }},
        {"set", 60, [this] { return anySetting(); },
         [this](const QString &what) {
             set(what.section(' ', 0, 0), what.section(' ', 1).toInt());
         }},
        {"write", 5,
         [this] {
             return QString(any({"spinBox1", "spinBox2", "spinBox5", "spinBox8", "spinBox27",
                                 "fontComboBoxLowercase", "fontComboBoxUppercase"}) %
                            " " % any({"7", "12", "-3", "Arial", "x", "';}"}));
         },
         [this](const QString &what) {
             click(reach(what.section(' ', 0, 0)));
             for (const QChar each : what.section(' ', 1)) {
                 key(QEvent::KeyPress, each);
                 key(QEvent::KeyRelease, each);
             }
         }},
        {"wheel", 10, [this] { return QString(any(fields) % (draw(2) ? " 120" : " -120")); },
         [this](const QString &what) {
             QWidget *on = reach(what.section(' ', 0, 0));
             const QPoint at = on->rect().center();
             if (spot(on).isNull())
                 return;
             QWheelEvent event(at, on->mapToGlobal(at), {}, {0, what.section(' ', 1).toInt()},
                               Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
             QCoreApplication::sendEvent(on, &event);
         }},
        {"color", 60,
         [this] {
             const QString title = anyDialog();
             const auto part = [this] { return draw(256); };
             const QColor color(part(), part(), part(), draw(3) ? 255 : part());
             return title.isEmpty() ? title : QString(color.name(QColor::HexArgb) % " " % title);
         },
         [](const QString &what) {
             if (QColorDialog *dialog = dialogOf(what.section(' ', 1)))
                 dialog->setCurrentColor(QColor(what.section(' ', 0, 0)));
         }},
        {"wait", 60, [this] { return QString::number(draw(31)); },
         [](const QString &ms) { pass(ms.toInt()); }},
        {"wait", 8, [this] { return QString::number(200 + draw(1200)); },
         [](const QString &ms) { pass(ms.toInt()); }},
        // The last window closes, and the program is started again as far as it knows.
        {"quit", 1, [] { return QString("-"); }, [this](const QString &) { window->close(); }},
        {"settle", 0, {}, [this](const QString &) { settle(); }},
        {"seed", 0, {}, [](const QString &number) { std::srand(number.toUInt()); }},
    };
    dialogAct("ok", 15, [](QColorDialog &dialog) { dialog.accept(); });
    dialogAct("cancel", 15, [](QColorDialog &dialog) { dialog.reject(); });
    dialogAct("shut", 5, [](QColorDialog &dialog) { dialog.close(); });
    keyAct("press", 30, [this](const QString &name) { key(QEvent::KeyPress, name); });
    keyAct("release", 30, [this](const QString &name) { key(QEvent::KeyRelease, name); });
    keyAct("repeat", 8, [this](const QString &name) {
        key(QEvent::KeyPress, name, true);
        key(QEvent::KeyPress, name, true);
    });
    keyAct("type", 60, [this](const QString &name) {
        key(QEvent::KeyPress, name);
        key(QEvent::KeyRelease, name);
    });
}

QString Player::anyAct()
{
    int weights = 0;
    for (const Family &each : families)
        weights += each.weight;
    for (;;) {
        int at = draw(weights);
        auto family = families.begin();
        while ((at -= family->weight) >= 0)
            ++family;
        const QString object = family->object();
        const QString line = QString(family->word) + ' ' + object;
        const bool leftOut = std::any_of(without.begin(), without.end(),
                                         [&](const QString &word) { return line.contains(word); });
        if (!object.isEmpty() && !leftOut)
            return line;
    }
}

void Player::act(const QString &line)
{
    alarm(hangSeconds);
    QTimer attention;
    QObject::connect(&attention, &QTimer::timeout, [this] { attendDialogs(); });
    attention.start(20);
    for (const Family &each : families) {
        if (line.section(' ', 0, 0) == each.word) {
            each.perform(line.section(' ', 1));
            break;
        }
    }
    pass(afterActMs);
    tidy();
}

// What opens beside the keyboard must not lie between it and the mouse.
void Player::tidy()
{
    if (!window->isVisible())
        open();
    for (QWidget *each : others(window.get())) {
        if (each->geometry().intersects(window->geometry()))
            each->move(4000, 100);
    }
    const GameState &game = window->game();
    busy |= game.kestrixKeyboardOn || game.fade != GameState::Fade::None || game.fadeRunning ||
            !widgets["shieldStart"]->isHidden();
}

// A dialog that waits would keep the act from ending.
void Player::attendDialogs()
{
    if (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    QWidget *modal = QApplication::activeModalWidget();
    if (auto *files = qobject_cast<QFileDialog *>(modal)) {
        if (answer.isEmpty()) {
            files->reject();
            return;
        }
        files->findChild<QLineEdit *>("fileNameEdit")->setText(folder.filePath(answer));
        answer.clear();
        // It may ask a question of its own, which must not wait in here.
        QMetaObject::invokeMethod(files, "accept", Qt::QueuedConnection);
    } else if (auto *box = qobject_cast<QMessageBox *>(modal)) {
        if (QAbstractButton *yes = box->button(QMessageBox::Yes))
            yes->click();
        else
            box->accept();
    }
}

QString Player::anyReachable(const QStringList &list)
{
    for (int tries = 0; tries < 50; ++tries) {
        const QString name = any(list);
        if (!spot(widgets[name]).isNull())
            return name;
    }
    return {};
}

QString Player::anyKey()
{
    static const QStringList others{"Space",  "Shift",  "Control",   "Tab",  "Backtab", "Escape",
                                    "Return", "Delete", "Backspace", "Left", "F1",      "CapsLock"};
    static const QStringList modifiers{"ctrl+", "alt+", "shift+", "keypad+"};
    if (draw(8) == 0)
        return any(others);
    const QString character = any(window->furniture().widgets.letterList);
    return draw(20) == 0 ? QString(any(modifiers) % character) : character;
}

QString Player::anySetting()
{
    const QString name = any(fields);
    QWidget *field = widgets[name];
    int least = 0, most = 1;
    if (auto *slider = qobject_cast<QSlider *>(field)) {
        least = slider->minimum();
        most = slider->maximum();
    } else if (auto *spin = qobject_cast<QSpinBox *>(field)) {
        least = spin->minimum();
        most = spin->maximum();
    } else if (auto *box = qobject_cast<QComboBox *>(field)) {
        most = box->count() - 1;
    }
    return QString("%1 %2").arg(name).arg(least + draw(most - least + 1));
}

QString Player::anyDialog()
{
    QStringList titles;
    for (const QWidget *each : others(window.get())) {
        if (qobject_cast<const QColorDialog *>(each))
            titles << each->windowTitle();
    }
    return titles.isEmpty() ? QString() : any(titles);
}

QString Player::withFile(const QString &name)
{
    static const QRegularExpression asks("^(open|save|tn|display)");
    return name.contains(asks) ? QString(name % " " % any(Files::names())) : name;
}

QWidget *Player::find(const QString &name) const
{
    if (QWidget *own = widgets.value(name))
        return own;
    for (QWidget *each : others(window.get())) {
        if (auto *child = each->findChild<QWidget *>(name))
            return child;
    }
    return nullptr;
}

// As a player would: through the options and the panel's button, and for a tab by its label.
QWidget *Player::reach(const QString &name)
{
    QWidget *wanted = find(name);
    if (!wanted || !spot(wanted).isNull())
        return wanted;
    for (const QStringList &pieces : panels) {
        for (int i = 1; i < pieces.size(); ++i) {
            const QWidget *piece = widgets[pieces[i]];
            if (piece != wanted && !piece->isAncestorOf(wanted))
                continue;
            QWidget *menu = widgets[pieces[0]];
            if (spot(menu).isNull()) {
                click(widgets["options"]);
                pass(slideMs);
            }
            if (piece->isHidden() && menu->property("text") != "Close")
                click(menu);
            for (QWidget *page = wanted; page != window.get(); page = page->parentWidget()) {
                if (auto *stack = qobject_cast<QStackedWidget *>(page->parentWidget()))
                    click(widgets[QString("labelTab%1").arg(stack->indexOf(page) + 1)]);
            }
            return wanted;
        }
    }
    return wanted;
}

void Player::hover(QWidget *widget)
{
    const QPoint at = spot(widget);
    if (!at.isNull())
        QCursor::setPos(widget->window()->mapToGlobal(at));
    QCoreApplication::processEvents();
}

void Player::click(QWidget *widget, Qt::MouseButton button, bool twice)
{
    hover(widget);
    const QPoint at = spot(widget);
    if (at.isNull())
        return;
    if (twice)
        QTest::mouseDClick(widget->window()->windowHandle(), button, {}, at);
    else
        QTest::mouseClick(widget->window()->windowHandle(), button, {}, at);
}

void Player::click(const QString &what, Qt::MouseButton button, bool twice)
{
    answer = what.section(' ', 1);
    click(reach(what.section(' ', 0, 0)), button, twice);
    answer.clear();
}

// As a US keyboard sends it: letters as capitals, Shift for the upper character of a key.
void Player::key(QEvent::Type type, QString name, bool again)
{
    down.removeAll(name);
    if (type == QEvent::KeyPress)
        down << name;
    Qt::KeyboardModifiers modifiers;
    const int prefix = name.size() > 2 ? name.indexOf('+') + 1 : 0;
    if (prefix > 0) {
        const QString modifier = name.left(prefix);
        modifiers = modifier == "ctrl+"    ? Qt::ControlModifier
                    : modifier == "alt+"   ? Qt::AltModifier
                    : modifier == "shift+" ? Qt::ShiftModifier
                                           : Qt::KeypadModifier;
        name.remove(0, prefix);
    }
    int code = 0;
    QString text;
    if (name.size() == 1) {
        code = name[0].toUpper().unicode();
        text = name;
        if (name[0].isUpper() || QString("~!@#$%^&*()_+{}|:\"<>?").contains(name))
            modifiers |= Qt::ShiftModifier;
    } else {
        code = QMetaEnum::fromType<Qt::Key>().keyToValue(qPrintable(QString("Key_" % name)));
    }
    QWidget *focus = window->focusWidget();
    QKeyEvent event(type, code, modifiers, text, again);
    QCoreApplication::sendEvent(focus ? focus : window.get(), &event);
}

// A correct entry in the difficulty that is set.
void Player::enterTarget()
{
    const QString target = window->furniture().ui.leMatch->text();
    if (target.isEmpty())
        return;
    for (const QString &name : {target, QString("Space")}) {
        key(QEvent::KeyPress, name);
        key(QEvent::KeyRelease, name);
        if (window->game().choice.isStrict())
            break;
    }
}

void Player::set(const QString &name, int value)
{
    QWidget *field = reach(name);
    if (spot(field).isNull())
        return;
    if (auto *slider = qobject_cast<QSlider *>(field)) {
        slider->setSliderDown(true);
        slider->setSliderPosition(value);
        slider->setSliderDown(false);
    } else if (auto *spin = qobject_cast<QSpinBox *>(field)) {
        spin->setValue(value);
    } else if (auto *box = qobject_cast<QComboBox *>(field)) {
        box->setCurrentIndex(value);
        emit box->activated(value);
    }
}

// ---- at rest

void Player::settle()
{
    const auto press = [this](const char *name) {
        qobject_cast<QAbstractButton *>(widgets[name])->click();
    };
    for (QWidget *each : others(window.get()))
        each->close();
    pass(slideMs);
    if (widgets["hideNonVitals"]->property("text") == "Show")
        press("hideNonVitals");
    press("stop");
    if (widgets["tableOfContents"]->x() < window->width())
        press("closeX");
    if (!widgets["frameLinehighlight"]->isHidden())
        press("lineHighOptions");
    for (const QString &name : QStringList(down))
        key(QEvent::KeyRelease, name);
    QCursor::setPos(-9000, 0);
    pass(busy ? busyRestMs : restMs);
    busy = false;
    checkKeys();
    checkChoices();
    checkDress();
}

QString Player::holdings() const
{
    int timers = 0;
    QObjectList all = window->findChildren<QObject *>();
    all << window.get();
    for (const QObject *each : all)
        timers += QAbstractEventDispatcher::instance()
                      ->registeredTimers(const_cast<QObject *>(each))
                      .size();
    return QString("%1 objects, %2 timers").arg(all.size()).arg(timers);
}

void Player::complain(const QString &complaint)
{
    const bool leftOut = std::any_of(without.begin(), without.end(),
                                     [&](const QString &word) { return complaint.contains(word); });
    if (!leftOut)
        faults.append(complaint);
}

// Putting everything back must find nothing to do.
void Player::checkDress()
{
    const KeyboardWidgets &keyboard = window->furniture().widgets;
    const Ui::tambrel &ui = window->furniture().ui;
    QVector<QLabel *> all = keyboard.alphabetLabelList + keyboard.alphabetBgList +
                            keyboard.lowerKeyList + keyboard.upperKeyList + keyboard.keyBgList;
    all << ui.underScoreLeft << ui.underScoreRight;
    QStringList before;
    for (const QLabel *label : qAsConst(all))
        before << label->styleSheet();
    window->keyFeedback().allChangeColorBack();
    window->keyFeedback().dressOtherKeys();
    for (int i = 0; i < all.size(); ++i) {
        if (all[i]->styleSheet() != before[i])
            complain("lit: " + all[i]->objectName() + " wore { " + before[i] +
                     " } and at rest wears { " + all[i]->styleSheet() + " }");
    }
}

void Player::checkKeys()
{
    const KeyboardWidgets &keyboard = window->furniture().widgets;
    const bool covered = !widgets["checkNone"]->isHidden(); // and below it all stays as it was
    const bool lowerOnly = !widgets["checkRussian"]->isHidden();
    const bool upperOnly = !widgets["checkEnglish"]->isHidden();
    const auto check = [this](bool fine, const char *what, const QWidget *widget) {
        if (!fine)
            complain(QString(what) + ": " + widget->objectName());
    };
    for (const Keys::Place place : Keys::places) {
        const bool cap = place.isCap();
        QVector<QLabel *> parts{keyboard.background(place), keyboard.text(place),
                                keyboard.image(place)};
        if (cap)
            parts << keyboard.upperKeyList[place.index()] << keyboard.shield(place.cap());
        for (const QLabel *part : qAsConst(parts)) {
            const auto *effect = qobject_cast<QGraphicsOpacityEffect *>(part->graphicsEffect());
            check(!effect, "faded", part);
        }
        check(!parts[0]->isHidden(), "gone", parts[0]);
        check(covered || parts[1]->isHidden() == (cap && upperOnly), "letters shown amiss",
              parts[1]);
        check(parts[2]->x() >= 0, "aside", parts[2]);
        check(parts[2]->isHidden() != window->wardrobe().images.keys.isOn(), "picture shown amiss",
              parts[2]);
        if (cap) {
            check(covered || parts[3]->isHidden() == lowerOnly, "letters shown amiss", parts[3]);
            check(!parts[4]->isHidden(), "gone", parts[4]);
        }
        check(keyboard.burst(place)->isHidden(), "bursting", keyboard.burst(place));
    }
    static const QRegularExpression line("^[hv][0-9]+(_2)?$");
    for (const QString &name : qAsConst(labels)) {
        if (name.contains(line))
            check(widgets[name]->isHidden(), "lined", widgets[name]);
    }
    for (const QWidget *mark : {widgets["underScoreLeft"], widgets["underScoreRight"]})
        check(!mark->isHidden() && !mark->graphicsEffect(), "mark gone", mark);
}

void Player::checkChoices()
{
    const auto checkedOf = [this](const QStringList &names) {
        QStringList checked;
        for (const QString &name : names) {
            auto *button = qobject_cast<QAbstractButton *>(widgets[name]);
            if (button ? button->isChecked() : !widgets[name]->isHidden())
                checked << name;
        }
        return checked;
    };
    const QStringList effect = checkedOf(effects.mid(0, 6)), fade = checkedOf(effects.mid(6));
    const QStringList marks = checkedOf({"checkNone", "checkRussian", "checkEnglish", "checkBoth"});
    for (const QStringList &each : {effect, fade, marks}) {
        if (each.size() != 1)
            complain("choice: checked are " + each.join(" and "));
    }
    const GameState &game = window->game();
    if (game.kestrixKeyboardOn == effect.contains("finishedNone"))
        complain("effect: it is " + effect.join(' ') + ", but bursts are " +
                 (game.kestrixKeyboardOn ? "on" : "off"));
    const QString expected = game.fade == GameState::Fade::Out     ? "fadeOut"
                             : game.fade == GameState::Fade::OutIn ? "fadeOutIn"
                                                                   : "effectNone";
    if (!fade.contains(expected))
        complain("fade: it is " + fade.join(' ') + ", but the game has " + expected);
}

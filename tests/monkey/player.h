#pragma once

#include <QHash>
#include <QStringList>
#include <QTemporaryDir>
#include <functional>
#include <memory>
#include <random>

class QLabel;
class QWidget;
class tambrel;

// A player who does anything that a mouse and a keyboard can do, and looks from time to time
// whether the keyboard on the screen has come to rest. An act is one line of text, a word and what
// it is done with, so that a run can be written down and done again.
class Player
{
public:
    // Acts and complaints with one of these words in them are left out.
    explicit Player(const QStringList &leftOut, unsigned seed = 0);
    ~Player();

    QString anyAct(); // one that can be done now
    void act(const QString &line);
    // What was wrong so far: any warning, and what did not look at rest after "settle".
    QStringList complaints() const { return faults; }
    // What must not grow in a long evening, in words.
    QString holdings() const;

private:
    struct Family
    {
        const char *word;
        int weight;
        std::function<QString()> object; // empty: there is nothing to do it with
        std::function<void(const QString &)> perform;
    };
    void addFamilies();

    int draw(int below) { return int(random() % unsigned(below)); }
    QString any(const QStringList &list) { return list[draw(list.size())]; }
    QString anyReachable(const QStringList &list);
    QString anyKey();
    QString anySetting();
    QString anyDialog();
    QString withFile(const QString &name);

    void open();
    QWidget *find(const QString &name) const;
    QWidget *reach(const QString &name);
    void click(QWidget *widget, Qt::MouseButton button = Qt::LeftButton, bool twice = false);
    void click(const QString &what, Qt::MouseButton button, bool twice);
    void hover(QWidget *widget);
    void key(QEvent::Type type, QString name, bool again = false);
    void enterTarget();
    void set(const QString &name, int value);
    void attendDialogs();
    void tidy();
    void settle();

    void complain(const QString &complaint);
    void checkDress();
    void checkKeys();
    void checkChoices();

    QStringList without;
    std::mt19937 random;
    std::vector<Family> families;
    QTemporaryDir folder;
    std::unique_ptr<tambrel> window;
    QHash<QString, QWidget *> widgets;                       // of the main window
    QStringList buttons, labels, inPanels, swatches, fields; // of them, by name
    QStringList down;                                        // keys that wait for their release
    QString answer; // the name of a file for the next file dialog; empty cancels
    QStringList faults;
    bool busy = false; // something has moved since the last rest
};

#pragma once

#include <QVector>
#include <QWidget>

class QLabel;

// The 552 labels of the on-screen keyboard and of the Alphabet Bar follow from tables of
// places and are built here. The form keeps an empty, hidden widget for each of
// these layers: it stands where the labels lie among everything else of the window, with the
// marks of f and j between the faces and the shields, and the bursts over all. The labels are
// siblings of that widget, not its children, so that lines and bursts can be moved among them.
//
// A list of 54 holds the 47 caps, then the control keys in Keys::textOrder; one of 94 the keys.

class KeyFaces : public QWidget
{
    Q_OBJECT

public:
    explicit KeyFaces(QWidget *window);

    QVector<QLabel *> backgrounds;  // 54, bg#
    QVector<QLabel *> images;       // 54, img#
    QVector<QLabel *> characters;   // 94, r#_2
    QVector<QLabel *> controlTexts; // 7, label<control key>
};

// What the mouse meets over a cap.
class KeyShields : public QWidget
{
    Q_OBJECT

public:
    explicit KeyShields(QWidget *window);

    QVector<QLabel *> shields; // 47, shield#
};

class AlphabetBar : public QWidget
{
    Q_OBJECT

public:
    explicit AlphabetBar(QWidget *window);

    QVector<QLabel *> backgrounds; // 94, r#bg
    QVector<QLabel *> letters;     // 94, r#
};

class KeyBursts : public QWidget
{
    Q_OBJECT

public:
    explicit KeyBursts(QWidget *window);

    QVector<QLabel *> covers; // 54, displayNone#
    QVector<QLabel *> bursts; // 54, pulsate#
};

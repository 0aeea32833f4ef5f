#include "refusal.h"

#include "announcer.h"

#include <QLabel>

Refusal::Refusal(QLabel &words) : label(words), announcer(new Announcer(words.window())) {}

void Refusal::show(bool refused)
{
    label.setVisible(refused);
    if (refused)
        announcer->say(label.text());
}

#pragma once

#include <QSize>
#include <memory>
#include <vector>

class QLabel;
class QMovie;

// The small moving pictures on the panels, which show what there is to choose. They
// run only while their panel can be seen.
class Thumbnails
{
public:
    Thumbnails();
    ~Thumbnails();

    // A moving picture of the program's own. The size is in logical px, invalid: as it is; the
    // speed in percent.
    void add(QLabel *label, const char *gif, QSize size, int speed);
    // Runs those that can be seen and pauses the others.
    void follow();

private:
    struct Thumbnail
    {
        QLabel *label;
        std::unique_ptr<QMovie> movie;
    };
    std::vector<Thumbnail> thumbnails;
};

#pragma once

#include <memory>
#include <vector>

class QLabel;
class QMovie;
class QWidget;

// The small moving pictures on the panels, which show what there is to choose. They
// run only while their panel can be seen.
class Thumbnails
{
public:
    Thumbnails();
    ~Thumbnails();

    // Once the panels stand in the window.
    void loadGifs(const QWidget &window);
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

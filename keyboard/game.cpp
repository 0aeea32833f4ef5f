#include "game.h"

#include "furniture.h"
#include "ui_tambrel.h"

Game::Game(const Furniture &usedFurniture) : choice(usedFurniture.ui), furniture(usedFurniture) {}

int Game::target() const
{
    return furniture.widgets.indexOf(furniture.ui.leMatch->text());
}

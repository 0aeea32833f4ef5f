#pragma once

class QWidget;

// The insides of the option panels are forms of their own, which open alone in
// Designer with every piece at its working place. Here they become part of the
// window: each piece a child of the parent, hidden until its panel opens.
namespace PanelForms {

void build(QWidget &parent);

} // namespace PanelForms

#pragma once

#include <QWidget>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class QLineEdit;
class QListWidget;

// What a user does with windows, for measuring, and the same with bare widgets of the toolkit.
namespace eterlab::bench {

/// Lets the event loop lay out and paint what it was asked for.
void settle();

/// Opens a window and paints it.
QWidget& open(std::string_view window);
/// Closes all that is open.
void close_all();

/// Those that are open. Some windows open a companion beside themselves.
std::vector<const QWidget*> open_windows();

/// For each window another with as many widgets of the same kinds, in one column and as the toolkit
/// makes them.
enum class Texts : bool { none, same };
using BareWindows = std::vector<std::unique_ptr<QWidget>>;
BareWindows open_bare(const std::vector<const QWidget*>& models, Texts texts);

/// A box that computes as the user types.
struct LiveBox {
  std::string window;
  std::string box;
};

/// Every such box of the program: what is typed there shows results at once.
std::vector<LiveBox> live_boxes();

/// Opens the window of the box, with its worked example in it, and puts the focus into the box.
QLineEdit& open_example(const LiveBox& live);

/// A bare box with the focus, alone in a window.
std::unique_ptr<QLineEdit> open_bare_box();

/// A bare list with the same rows, with the focus, alone in a window.
std::unique_ptr<QListWidget> open_bare_list(const QListWidget& model);
/// Two keys, each painted.
void go_down_and_back(QListWidget& list);

/// A digit, and the key that takes it back.
constexpr int strokes_typed = 2;
void type_and_take_back(QLineEdit& box);
/// The same, each painted.
void type_and_take_back_in_sight(QLineEdit& box);

}  // namespace eterlab::bench

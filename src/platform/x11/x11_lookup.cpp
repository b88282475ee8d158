#include "platform/x11/x11_lookup.h"

#include "platform/x11/x11_connection.h"
#include "platform/x11/x11_title.h"

namespace vellumark {
namespace {

// Window managers put a window into two or three frames. What lies deeper is part of a window.
constexpr int kDeepestFrame = 4;

Reply<xcb_query_tree_reply_t> Tree(X11Connection& x, xcb_window_t window) {
  return Reply<xcb_query_tree_reply_t>(
      xcb_query_tree_reply(x.Xcb(), xcb_query_tree(x.Xcb(), window), nullptr));
}

void AddTitledWindows(X11Connection& x, xcb_window_t parent, int depth,
                      std::vector<TopLevelWindow>& windows) {
  const Reply<xcb_query_tree_reply_t> tree = Tree(x, parent);
  if (!tree) return;

  const xcb_window_t* children = xcb_query_tree_children(tree.get());
  for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
    std::string title = ReadTitle(x, children[i]);
    if (!title.empty()) {
      windows.push_back({children[i], std::move(title)});
    } else if (depth < kDeepestFrame) {
      AddTitledWindows(x, children[i], depth + 1, windows);
    }
  }
}

WindowHandle WindowWithFocus(X11Connection& x) {
  const Reply<xcb_get_input_focus_reply_t> focus(
      xcb_get_input_focus_reply(x.Xcb(), xcb_get_input_focus(x.Xcb()), nullptr));
  if (!focus || focus->focus == XCB_INPUT_FOCUS_NONE ||
      focus->focus == XCB_INPUT_FOCUS_POINTER_ROOT) {
    return 0;
  }

  WindowHandle outermost = 0;
  WindowHandle titled = 0;
  for (xcb_window_t window = focus->focus; window != 0 && window != x.Root();) {
    outermost = window;
    if (!ReadTitle(x, window).empty()) titled = window;
    const Reply<xcb_query_tree_reply_t> tree = Tree(x, window);
    window = tree ? tree->parent : 0;
  }
  return titled != 0 ? titled : outermost;
}

}  // namespace

bool IsManaged(X11Connection& x) {
  // The root keeps the mark of a window manager that has ended; its window is gone then.
  const xcb_atom_t mark = x.Ewmh()->_NET_SUPPORTING_WM_CHECK;
  const xcb_window_t manager = x.Number(x.Root(), mark, XCB_ATOM_WINDOW);
  return manager != 0 && x.Number(manager, mark, XCB_ATOM_WINDOW) == manager;
}

std::vector<TopLevelWindow> ListWindows(X11Connection& x) {
  std::vector<TopLevelWindow> windows;
  if (IsManaged(x)) {
    for (const WindowHandle window :
         x.Numbers(x.Root(), x.Ewmh()->_NET_CLIENT_LIST, XCB_ATOM_WINDOW)) {
      windows.push_back({window, ReadTitle(x, window)});
    }
  } else {
    AddTitledWindows(x, x.Root(), 1, windows);
  }
  return windows;
}

WindowHandle FindActiveWindow(X11Connection& x) {
  return IsManaged(x) ? x.Number(x.Root(), x.Ewmh()->_NET_ACTIVE_WINDOW, XCB_ATOM_WINDOW)
                      : WindowWithFocus(x);
}

ProcessId FindProcess(X11Connection& x, WindowHandle window) {
  const xcb_atom_t stated = x.Ewmh()->_NET_WM_PID;
  if (const ProcessId process = x.Number(window, stated, XCB_ATOM_CARDINAL)) return process;
  const xcb_window_t leader = x.Number(window, x.ClientLeader(), XCB_ATOM_WINDOW);
  return leader == 0 ? 0 : x.Number(leader, stated, XCB_ATOM_CARDINAL);
}

bool Exists(X11Connection& x, WindowHandle window) {
  return Reply<xcb_get_window_attributes_reply_t>(xcb_get_window_attributes_reply(
             x.Xcb(), xcb_get_window_attributes(x.Xcb(), window), nullptr)) != nullptr;
}

}  // namespace vellumark

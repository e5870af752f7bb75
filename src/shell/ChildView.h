#pragma once

/// What a view inside the main window may want to be told. A view is a QWidget that also derives
/// from this; the window calls it, the view never has to watch the window.
class ChildView {
public:
    virtual ~ChildView();
    /// The view has become the active one.
    virtual void Form_Activate() {}
    /// Another view has become the active one, or this one was hidden.
    virtual void Form_Deactivate() {}
    /// The main window was resized while the view is visible.
    virtual void Form_Resize() {}
};

#pragma once

#include <functional>
#include <map>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QString>

class ChildView;
class frmMain;
class QMdiArea;
class QMdiSubWindow;
class QWidget;

/// The views inside the main window. Each is made at its first use and lives on hidden when the
/// user closes it. The browser lies under all others and stays there.
class MdiChildren : public QObject {
    Q_OBJECT
public:
    /// Makes a view. The widget's object name is the name of the view; if it derives from
    /// ChildView it is told of activation and resizing.
    using Factory = std::function<QWidget*()>;

    /// `area` must outlive the object.
    explicit MdiChildren(QMdiArea& area);

    /// Puts the browser into the area, below everything.
    void SetBrowser(frmMain& browser);
    /// Makes a view known under its name ("frmStatusTable").
    void Register(const QString& name, Factory factory);
    bool Knows(const QString& name) const { return factories_.count(name) > 0; }

    /// Shows the view, in front and active; nothing happens for an unknown name. The first time
    /// it opens where it leaves the browser's lists in sight.
    void Show(const QString& name);
    /// Hides the view as a close by the user does.
    void Hide(const QString& name);
    /// The view, or null as long as it was never shown.
    QWidget* View(const QString& name) const;
    bool IsVisible(const QString& name) const;
    /// Name of the active view; stays while a dialog or another program is in front.
    QString ActiveName() const;
    /// Calls the resize handler of the browser, then of every visible view.
    void ResizeAll();

Q_SIGNALS:
    /// Another view has become the active one.
    void ActiveChanged();
    /// The client area of the main window has another size.
    void AreaResized();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A view that was shown, and where it was put; it stays there until the user moves it.
    struct Child {
        QPointer<QMdiSubWindow> frame;
        int cascaded = 0; ///< how many views were placed before it
        QRect place;
    };

    QMdiSubWindow* Frame(const QString& name) const;
    void Add(const QString& name);
    void Place(Child& child);
    void PlaceAgain();
    void Activated(QMdiSubWindow* frame);
    void ActivateNext();
    void KeepBrowserLowest();
    static ChildView* Handlers(const QMdiSubWindow* frame);

    QMdiArea& area_;
    frmMain* browser_ = nullptr;
    QPointer<QMdiSubWindow> browserFrame_;
    QPointer<QMdiSubWindow> active_;
    std::map<QString, Factory> factories_;
    std::map<QString, Child> children_;
};

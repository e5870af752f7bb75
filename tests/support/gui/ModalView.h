#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <QApplication>
#include <QTimer>
#include <QWidget>

/// Acts in the modal view of this object name as soon as it is up; to be called before the command
/// that shows it. A view that does not come within some hundred turns fails the test.
inline void InModalView(const QString& name, std::function<void(QWidget&)> act, int turns = 500) {
    QTimer::singleShot(0, qApp, [name, act = std::move(act), turns] {
        QWidget* view = QApplication::activeModalWidget();
        if (view && view->objectName() == name)
            act(*view);
        else if (turns > 0)
            InModalView(name, act, turns - 1);
        else
            ADD_FAILURE() << "did not come up: " << name.toStdString();
    });
}

/// The part of a view of this object name; fails the test if there is none.
template <class T>
T* PartOf(QWidget& view, const char* name) {
    T* part = view.findChild<T*>(QString::fromLatin1(name));
    EXPECT_NE(part, nullptr) << name;
    return part;
}

#pragma once

#include "programset/FileOperations.h"
#include <set>

/// Changes files on disk, but fails with a device error where a test wants it.
class ScriptedFileOperations final : public FileOperations {
public:
    /// The `number`th operation from now on fails, counted from 1, and does nothing.
    void FailAt(int number) { failing_.insert(calls_ + number); }
    /// Every operation from the `number`th on fails.
    void FailFrom(int number) { failingFrom_ = calls_ + number; }
    /// The `number`th copy finds the disk full.
    void FillDiskAtCopy(int number) { fullAtCopy_ = number; }
    /// How many operations were asked for.
    int Calls() const { return calls_; }

    void Copy(const QString& from, const QString& to) override {
        Count(from);
        if (++copies_ == fullAtCopy_)
            throw FileError(ErrorNumber::DiskFull, to);
        disk_.Copy(from, to);
    }
    void Write(const QString& path, const QByteArray& bytes) override {
        Count(path);
        disk_.Write(path, bytes);
    }
    void Move(const QString& from, const QString& to) override {
        Count(from);
        disk_.Move(from, to);
    }
    void Remove(const QString& path) override {
        Count(path);
        disk_.Remove(path);
    }

private:
    void Count(const QString& path) {
        ++calls_;
        if (failing_.count(calls_) || (failingFrom_ && calls_ >= failingFrom_))
            throw FileError(ErrorNumber::DeviceIOError, path);
    }

    DiskFileOperations disk_;
    std::set<int> failing_;
    int failingFrom_ = 0;
    int calls_ = 0;
    int copies_ = 0;
    int fullAtCopy_ = 0;
};

/// Number of the run-time error that `action` raises; 0 for none.
template <typename Action>
int ErrorOf(Action action) {
    try {
        action();
        return 0;
    } catch (const RunTimeError& error) {
        return error.Number();
    }
}

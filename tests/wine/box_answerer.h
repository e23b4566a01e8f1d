#pragma once
// Answers the add-in's message boxes as a user would: a box that becomes active on this thread
// is read (its caption and text are kept) and closed with the next queued answer, or, with none
// queued, with No where it has No, else Cancel, else OK. A queued answer that is not a button's
// name is typed into an input box, which is then closed with OK. Without it a box under the
// virtual X server would wait for a user forever.

#include <windows.h>

#include <deque>
#include <string>
#include <vector>

namespace quillet::wine {

class BoxAnswerer {
public:
    BoxAnswerer();
    ~BoxAnswerer();
    BoxAnswerer(const BoxAnswerer&) = delete;
    BoxAnswerer& operator=(const BoxAnswerer&) = delete;

    // "caption: text" of each box answered so far.
    const std::vector<std::wstring>& answered() const { return answered_; }
    // The answer for the next box: "ok", "cancel", "yes", "no", "abort", "retry", "ignore", or the
    // text for an input box.
    void queue(const std::wstring& answer) { queued_.push_back(answer); }
    size_t pending() const { return queued_.size(); }

private:
    static LRESULT CALLBACK hook(int code, WPARAM wParam, LPARAM lParam);
    void activated(HWND box);

    HHOOK hook_ = nullptr;
    std::vector<std::wstring> answered_;
    std::deque<std::wstring> queued_;
};

}  // namespace quillet::wine

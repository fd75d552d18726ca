#include "tests/support/fake_ports.h"

#include "tests/support/fake_files.h"

#include <algorithm>
#include <stdexcept>

namespace quor {

namespace {

struct FakePicture final : Picture {
    explicit FakePicture(std::string from) : path(std::move(from)) {}

    const std::string path;

    const std::string& Path() const override { return path; }
    int PixelWidth() const override { return 16; }
    int PixelHeight() const override { return 16; }
};

} // namespace

BoxAnswer FakeBoxes::Show(const std::string& text, const std::string& title, BoxButtons buttons)
{
    using enum BoxAnswer;
    static const std::vector<BoxAnswer> offered[] = {{Ok}, {Yes, No}, {Yes, No, Cancel}}; // the safe one last
    const ShownBox box{text, title, buttons};
    shown.push_back(box);
    Shown.Raise(box);
    const std::vector<BoxAnswer>& choices = offered[static_cast<std::size_t>(buttons)];
    if (answers.empty()) {
        return choices.back();
    }
    const BoxAnswer answer = answers.front();
    answers.pop_front();
    if (std::ranges::find(choices, answer) == choices.end()) {
        throw std::logic_error("the box has no such button");
    }
    return answer;
}

void FakeDialog::Run(DialogKind kind)
{
    constexpr std::string_view calls[] = {"open", "save", "color", "font"};
    planned.Count(calls[static_cast<std::size_t>(kind)]);
    Shown.Raise(kind);
    const Step step = m_steps.empty() ? Step() : m_steps.front();
    m_steps.erase(m_steps.begin(), m_steps.begin() + (m_steps.empty() ? 0 : 1));
    if (step.act) {
        if (step.kind != kind) {
            throw std::logic_error("the script expects a dialog of another kind");
        }
        step.act(*this);
    } else if (kind == DialogKind::Open || kind == DialogKind::Save) {
        FileName.clear();
    }
}

PictureRef FakePictures::LoadPicture(const std::string& path)
{
    planned.Count("load");
    if (m_files.Get(path).empty()) {
        throw Failure(failures::invalidPicture);
    }
    return std::make_shared<FakePicture>(path);
}

} // namespace quor

#include "tests/doubles/memory_rich_text.h"

#include <algorithm>
#include <iterator>

namespace zentar {
namespace {

bool BreaksLine(std::string_view character) {
    const auto first = static_cast<unsigned char>(character.front());
    return first < ' ' || first == 0x7F || character == "\xE2\x80\xA8" ||
           character == "\xE2\x80\xA9";
}

// UTF-8's first character.
std::string_view FirstOf(std::string_view text) {
    std::size_t end = 1;
    while (end < text.size() && (text[end] & 0xC0) == 0x80)
        ++end;
    return text.substr(0, end);
}

}  // namespace

MemoryRichTextBox::MemoryRichTextBox(ControlHost& host, const ControlRow& row, ControlCore* parent)
    : MemoryControl(host, row, parent), characters_(CharactersOf({{row.caption, 0}})) {}

MemoryRichTextBox::Characters MemoryRichTextBox::CharactersOf(
    const std::vector<ColouredRun>& runs) {
    Characters characters;
    bool afterReturn = false;
    for (const ColouredRun& run : runs) {
        for (std::string_view rest = run.text; !rest.empty();) {
            const std::string_view one = FirstOf(rest);
            rest.remove_prefix(one.size());
            const bool secondOfPair = afterReturn && one == "\n";
            afterReturn = one == "\r";
            if (!secondOfPair)
                characters.push_back({BreaksLine(one) ? " " : std::string(one), run.colour});
        }
    }
    return characters;
}

std::size_t MemoryRichTextBox::IndexOf(int place) const {
    std::size_t index = 0;
    for (int at = 0; index < characters_.size(); ++index) {
        at += characters_[index].Width();
        if (at > place)
            break;
    }
    return index;
}

int MemoryRichTextBox::PlaceOf(std::size_t index) const {
    int place = 0;
    for (std::size_t i = 0; i < index; ++i)
        place += characters_[i].Width();
    return place;
}

std::string MemoryRichTextBox::Text() const {
    std::string text;
    for (const Character& character : characters_)
        text += character.bytes;
    return text;
}

RichText MemoryRichTextBox::Content() const {
    RichText content;
    for (const Character& character : characters_) {
        if (content.runs.empty() || content.runs.back().colour != character.colour)
            content.runs.push_back({"", character.colour});
        content.runs.back().text += character.bytes;
    }
    content.endColour = characters_.empty() ? chosen_.value_or(0) : characters_.back().colour;
    return content;
}

void MemoryRichTextBox::SetText(const std::string& text) {
    Log("SetText(" + text + ")");
    Characters characters = CharactersOf({{text, 0}});
    const bool another = characters != characters_;
    SetCharacters(std::move(characters));
    if (another)
        Raise("change", &ControlEvents::change);
}

void MemoryRichTextBox::SetContent(const std::vector<ColouredRun>& runs) {
    Log("SetContent(" + std::to_string(runs.size()) + ")");
    SetCharacters(CharactersOf(runs));
    Raise("change", &ControlEvents::change);
}

// There is nothing to take back afterwards, and the caret stands first.
void MemoryRichTextBox::SetCharacters(Characters characters) {
    characters_ = std::move(characters);
    characters_.resize(IndexOf(kMostRichText));
    selection_ = {};
    chosen_.reset();
    undo_.clear();
}

void MemoryRichTextBox::ColourSelection(ColourRef colour) {
    Log(CallWith("ColourSelection", colour));
    if (selection_.Empty()) {
        chosen_ = colour;
        return;
    }
    KeepForUndo();
    for (std::size_t i = selection_.first; i < selection_.last; ++i)
        characters_[i].colour = colour;
}

int MemoryRichTextBox::Caret() const { return PlaceOf(selection_.last); }

void MemoryRichTextBox::PutCaret(int place) {
    Log("PutCaret(" + std::to_string(place) + ")");
    Select(place, place);
}

void MemoryRichTextBox::SetBackground(Colour colour) {
    Log(CallWith("SetBackground", colour));
    background_ = colour;
}

bool MemoryRichTextBox::Shows(ColourRef colour) const {
    return EffectivelyEnabled() &&
           (background_ == Colour(colour) ||
            std::any_of(characters_.begin(), characters_.end(), [colour](const Character& each) {
                return each.bytes != " " && each.colour == colour;
            }));
}

void MemoryRichTextBox::Select(int from, int to) {
    const Range wanted = {IndexOf(from), IndexOf(to)};
    if (wanted.first == selection_.first && wanted.last == selection_.last)
        return;
    selection_ = wanted;
    chosen_.reset();
}

// That of the first of the characters it replaces, or of the character before, or of the first one.
ColourRef MemoryRichTextBox::TypingColour() const {
    if (chosen_)
        return *chosen_;
    if (characters_.empty())
        return 0;
    const bool takesBefore = selection_.Empty() && selection_.first > 0;
    return characters_[selection_.first - (takesBefore ? 1 : 0)].colour;
}

void MemoryRichTextBox::TypeCharacter(std::string_view character) {
    Replace({{std::string(character), TypingColour()}});
}

void MemoryRichTextBox::Paste(const std::vector<ColouredRun>& runs) { Replace(CharactersOf(runs)); }

void MemoryRichTextBox::Replace(const Characters& with) {
    int room = kMostRichText - PlaceOf(characters_.size()) + PlaceOf(selection_.last) -
               PlaceOf(selection_.first);
    const auto end = std::find_if(with.begin(), with.end(), [&](const Character& character) {
        room -= character.Width();
        return room < 0;
    });
    if (end == with.begin() && selection_.Empty())
        return;
    KeepForUndo();
    const Characters before = characters_;
    const auto first = characters_.begin() + static_cast<std::ptrdiff_t>(selection_.first);
    const auto last = characters_.begin() + static_cast<std::ptrdiff_t>(selection_.last);
    characters_.insert(characters_.erase(first, last), with.begin(), end);
    selection_.first += static_cast<std::size_t>(end - with.begin());
    selection_.last = selection_.first;
    chosen_.reset();
    if (characters_ != before)
        Raise("change", &ControlEvents::change);
}

void MemoryRichTextBox::Erase(Key key) {
    if (selection_.Empty() && key == Key::Backspace && selection_.first > 0)
        --selection_.first;
    if (selection_.Empty() && key == Key::Delete && selection_.last < characters_.size())
        ++selection_.last;
    Replace({});
}

void MemoryRichTextBox::Undo() {
    if (undo_.empty())
        return;
    characters_ = std::move(undo_.back().characters);
    selection_ = undo_.back().selection;
    undo_.pop_back();
    chosen_.reset();
    Raise("change", &ControlEvents::change);
}

}  // namespace zentar

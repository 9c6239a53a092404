// A box of coloured text in memory, and what its user does in it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/doubles/memory_controls.h"

namespace zentar {

class MemoryRichTextBox : public MemoryControl<RichTextBox> {
  public:
    MemoryRichTextBox(ControlHost& host, const ControlRow& row, ControlCore* parent);
    void SetText(const std::string& text) override;
    std::string Text() const override;
    RichText Content() const override;
    void SetContent(const std::vector<ColouredRun>& runs) override;
    void ColourSelection(ColourRef colour) override;
    int Caret() const override;
    void PutCaret(int place) override;
    void SetBackground(Colour colour) override;

    Colour Background() const { return background_; }
    bool Shows(ColourRef colour) const override;

    // The user. Places are in UTF-16 units, as the caret's.
    void Select(int from, int to);
    // One character takes the place of what is selected.
    void TypeCharacter(std::string_view character);
    void Paste(const std::vector<ColouredRun>& runs);
    // What is selected, or the character beside the caret.
    void Erase(Key key);
    // Takes back the last thing that changed the text or its colours; each typed character is one.
    void Undo();

  private:
    struct Character {
        std::string bytes;  // of one code point
        ColourRef colour = 0;

        int Width() const { return bytes.size() > 3 ? 2 : 1; }  // in UTF-16 units
        bool operator==(const Character&) const = default;
    };
    using Characters = std::vector<Character>;
    // The selection, as indices of characters.
    struct Range {
        std::size_t first = 0;
        std::size_t last = 0;
        bool Empty() const { return first == last; }
    };
    struct State {
        Characters characters;
        Range selection;
    };

    static Characters CharactersOf(const std::vector<ColouredRun>& runs);
    std::size_t IndexOf(int place) const;
    int PlaceOf(std::size_t index) const;
    ColourRef TypingColour() const;
    void Replace(const Characters& with);
    void KeepForUndo() { undo_.push_back({characters_, selection_}); }
    void SetCharacters(Characters characters);

    Characters characters_;
    Range selection_;
    // For what is typed next, when the colour was given to nothing at all.
    std::optional<ColourRef> chosen_;
    std::vector<State> undo_;
    Colour background_ = SystemColour::Window;
};

}  // namespace zentar

#include "mirolen/widgets/access_keys.h"

#include <algorithm>
#include <map>

namespace mirolen {
namespace {

constexpr bool is_small(char c) { return c >= 'a' && c <= 'z'; }
constexpr char capital(char c) { return is_small(c) ? static_cast<char>(c - 'a' + 'A') : c; }
constexpr bool is_on_every_keyboard(char c) { return capital(c) >= 'A' && capital(c) <= 'Z'; }
constexpr bool is_in_a_word(char c) { return is_on_every_keyboard(c) || (c & 0x80) != 0; }

/// The letters of a caption, those that begin a word in front.
std::string letters_of(const std::string& caption) {
  std::string first, others;
  bool in_word = false;
  for (const char c : caption) {
    if (is_on_every_keyboard(c)) (in_word ? others : first) += c;
    in_word = is_in_a_word(c);
  }
  return first + others;
}

bool is_before_a_field(const Widget& label) {
  const std::vector<Widget*>& siblings = label.container()->children();
  const auto at = std::find(siblings.begin(), siblings.end(), &label) + 1;
  return at != siblings.end() && (*at)->kind() == WidgetKind::text_field;
}

bool has_key(const Keyed& keyed) {
  const auto is_key = [&](char letter) { return capital(letter) == capital(keyed.AccessKey); };
  const std::string& caption = keyed.Caption;
  return keyed.AccessKey != 0 && std::any_of(caption.begin(), caption.end(), is_key);
}

class KeyChooser {
 public:
  explicit KeyChooser(Form& form) : form_(form) { collect(form); }

  void choose() {
    for (const Keyed* keyed : keyed_)
      if (has_key(*keyed)) set_ += capital(keyed->AccessKey);
    for (Keyed* keyed : keyed_) {
      if (has_key(*keyed)) continue;
      keyed->AccessKey = 0;
      std::string asked;
      if (needs_key(*keyed)) find_letter(*keyed, asked);
    }
  }

 private:
  void collect(const Widget& root) {
    for (Widget* child : root.children()) {
      if (auto* keyed = dynamic_cast<Keyed*>(child)) keyed_.push_back(keyed);
      collect(*child);
    }
  }

  bool needs_key(const Keyed& keyed) const {
    if (&keyed == form_.DefaultButton || &keyed == form_.CancelButton) return false;
    return keyed.kind() != WidgetKind::label || is_before_a_field(keyed);
  }

  bool is_free(char letter) const {
    return set_.find(capital(letter)) == std::string::npos && !holders_.contains(capital(letter));
  }

  void give(Keyed& keyed, char letter) {
    keyed.AccessKey = letter;
    holders_[capital(letter)] = &keyed;
  }

  /// A letter that is free, or else one whose holder finds another. Nobody is asked twice.
  bool find_letter(Keyed& keyed, std::string& asked) {
    const std::string letters = letters_of(keyed.Caption);
    const auto free =
        std::find_if(letters.begin(), letters.end(), [&](char letter) { return is_free(letter); });
    if (free != letters.end()) return give(keyed, *free), true;
    for (const char letter : letters) {
      const auto held = holders_.find(capital(letter));
      if (held == holders_.end() || asked.find(held->first) != std::string::npos) continue;
      asked += held->first;
      if (find_letter(*held->second, asked)) return give(keyed, letter), true;
    }
    return false;
  }

  Form& form_;
  std::vector<Keyed*> keyed_;
  std::string set_;                 // the keys that stay
  std::map<char, Keyed*> holders_;  // of the others
};

}  // namespace

void choose_access_keys(Form& form) { KeyChooser(form).choose(); }

}  // namespace mirolen

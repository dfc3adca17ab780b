// The controls that forms are made of. Grid and chart have headers of their own.
#pragma once

#include "platform/control.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace veritane::platform {

using Handler = std::function<void()>;

// Character codes that KeyPress handlers look for.
inline constexpr int kBackspaceKey = 8;
inline constexpr int kEnterKey = 13;
inline constexpr int kEscapeKey = 27;

class Label : public Control {
public:
  Label(Form& form, std::string name) : Control(form, std::move(name), ControlKind::kLabel) {}
};

// A frame with a caption around other controls. A frame in no other frame is a panel of its form.
class Frame : public Control {
public:
  Frame(Form& form, std::string name) : Control(form, std::move(name), ControlKind::kFrame) {}
};

class Button : public Control {
public:
  Button(Form& form, std::string name) : Control(form, std::move(name), ControlKind::kButton) {}

  Handler OnClick;
  void Click() const;

  // The button that Enter, or Escape, presses on its form.
  bool isDefault = false;
  bool isCancel = false;
};

// One of several choices; checking it unchecks the others of its group and raises Click.
class OptionButton : public Control {
public:
  OptionButton(Form& form, std::string name) : Control(form, std::move(name), ControlKind::kOption) {}

  Handler OnClick;
  bool Checked() const { return checked_; }
  void Check();

  // Makes the options one group. Call once for each group, with all its members.
  static void Group(const std::vector<OptionButton*>& members);

private:
  void Uncheck();

  bool checked_ = false;
  std::vector<OptionButton*> others_;
};

// On or off; a change raises Click.
class CheckBox : public Control {
public:
  CheckBox(Form& form, std::string name) : Control(form, std::move(name), ControlKind::kCheckBox) {}

  Handler OnClick;
  bool Checked() const { return checked_; }
  // 0 or 1, as settings keep it.
  int Value() const { return checked_ ? 1 : 0; }
  void SetChecked(bool checked);

private:
  bool checked_ = false;
};

// A line (or several) of text to type in, UTF-8.
class TextBox : public Control {
public:
  TextBox(Form& form, std::string name) : TextBox(form, std::move(name), ControlKind::kTextBox) {}

  // Raised after each change of the text.
  Handler OnChange;
  // Raised before a typed character reaches the box, with its code point. Returns whether it may.
  std::function<bool(int key)> OnKeyPress;

  const std::string& Text() const { return text_; }
  // A box of one line takes no control characters: they are dropped.
  virtual void SetText(const std::string& text);

  // Raises KeyPress; the caller inserts the character when the answer is true.
  bool KeyPress(int key) const;

  // The highlighted part, counted in characters from 0.
  int HighlightStart() const { return highlight_start_; }
  int HighlightLength() const { return highlight_length_; }
  void Highlight(int start, int length);
  std::string HighlightedText() const;

  // Shows dots instead of characters.
  bool isSecret = false;
  bool isMultiLine = false;
  bool isReadOnly = false;

protected:
  TextBox(Form& form, std::string name, ControlKind kind) : Control(form, std::move(name), kind) {}

private:
  std::string text_;
  int highlight_start_ = 0;
  int highlight_length_ = 0;
};

// The entries of a list, of which one or none is selected.
class ItemList {
public:
  virtual ~ItemList() = default;

  const std::vector<std::string>& Items() const { return items_; }
  int Count() const { return static_cast<int>(items_.size()); }
  // -1 for none.
  int Selected() const { return selected_; }
  // The selected entry's text, "" for none.
  std::string SelectedItem() const;

  virtual void Clear();
  void Add(const std::string& item);
  void AddAll(const std::vector<std::string>& items);

protected:
  // Called when entries came or went.
  virtual void ItemsChanged() = 0;

  std::vector<std::string> items_;
  int selected_ = -1;
};

class ListBox : public Control, public ItemList {
public:
  ListBox(Form& form, std::string name) : Control(form, std::move(name), ControlKind::kListBox) {}

  Handler OnClick;
  // Removes the entry; a selection of it is lost, one behind it moves up. Raises nothing.
  void Remove(int index);
  // Selects an entry (-1 for none) and raises Click, also when it was selected already. Error 5 outside the
  // list.
  void Select(int index);

private:
  void ItemsChanged() override { Changed(Property::kItems); }
};

// A list that drops down from a text. An editable one takes any text; the other only its entries.
class ComboBox : public TextBox, public ItemList {
public:
  ComboBox(Form& form, std::string name) : TextBox(form, std::move(name), ControlKind::kComboBox) {}

  // Raised when an entry is selected.
  Handler OnClick;
  bool isEditable = false;

  // Empties list and text.
  void Clear() override;
  // Selects an entry (-1 for none), shows it as the text, raises Click. Error 5 outside the list.
  void Select(int index);
  // Types into an editable box; the entry of just this text becomes the selected one, else none is. In a box
  // that is not editable only an entry's text is taken, and selecting it raises Click (error 5 for any other
  // text).
  void SetText(const std::string& text) override;

private:
  void ItemsChanged() override { Changed(Property::kItems); }
};

// Pages of which one is in front.
class TabControl : public Control {
public:
  TabControl(Form& form, std::string name) : Control(form, std::move(name), ControlKind::kTabs) {}

  // Raised after another page came to the front, with the index of the page that was left.
  std::function<void(int previous)> OnChange;

  void SetPages(int count) { captions_.resize(static_cast<std::size_t>(count)); }
  int PageCount() const { return static_cast<int>(captions_.size()); }
  const std::string& PageCaption(int page) const { return captions_.at(static_cast<std::size_t>(page)); }
  void SetPageCaption(int page, const std::string& caption);

  int Tab() const { return tab_; }
  void SetTab(int page);

private:
  std::vector<std::string> captions_;
  int tab_ = 0;
};

}  // namespace veritane::platform

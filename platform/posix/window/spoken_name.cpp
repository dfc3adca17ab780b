// Names in the toolkit's accessibility tree.
#include "platform/wx/spoken_name.h"

#include <gtk/gtk.h>

namespace veritane::platform {

namespace {

struct Telling {
  const char* name;
  const char* content;
};

void TellOne(GtkWidget* widget, const Telling& telling) {
  AtkObject* accessible = gtk_widget_get_accessible(widget);
  atk_object_set_name(accessible, telling.name);
  atk_object_set_description(accessible, telling.content);
}

void TellWithAllInside(GtkWidget* widget, gpointer data) {
  TellOne(widget, *static_cast<const Telling*>(data));
  if (GTK_IS_CONTAINER(widget)) gtk_container_forall(GTK_CONTAINER(widget), TellWithAllInside, data);
}

}  // namespace

void TellScreenReaders(wxWindow& window, const wxString& name, const wxString& content) {
  const wxScopedCharBuffer name_text = name.utf8_str();
  const wxScopedCharBuffer content_text = content.utf8_str();
  Telling telling{name_text, content_text};
  GtkWidget* widget = window.GetHandle();
  // A list or a text of several lines lies in a frame that scrolls, text and button of a combo box in the
  // box: the keyboard is inside. Other widgets may hold windows of ours that have names of their own.
  if (GTK_IS_SCROLLED_WINDOW(widget) || GTK_IS_COMBO_BOX(widget)) {
    TellWithAllInside(widget, &telling);
  } else {
    TellOne(widget, telling);
  }
}

}  // namespace veritane::platform

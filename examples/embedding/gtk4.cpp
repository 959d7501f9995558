// A form inside a GTK 4 widget, which may stand in any window. The window's title is the chosen item.

#include <gtk/gtk.h>
#include <thread>
#include <tvok/host/desktop/Embedding.h>
#include <tvok/host/desktop/Keysyms.h>
#include <tvok/tvok.h>

/// To be destroyed after the window that `widget` is in.
struct DesktopWidget {
    using Self = DesktopWidget*;
    DesktopWidget() : embedding(new tvok::Embedding({}, tvok::Embedding::Layout::OneSurface, Calls())) {
        gtk_widget_set_focusable(widget, true);
        gtk_drawing_area_set_draw_func(GTK_DRAWING_AREA(widget), Draw, this, nullptr);
        gtk_im_context_set_client_widget(method, widget);
        On(widget, "resize", [](void*, int x, int y, Self me) { me->embedding->Resize(x, y), me->Turn(); });
        On(widget, "notify::has-focus", [](void*, void*, Self me) { me->Focus(); });
        On(gtk_event_controller_motion_new(), "enter", Move);
        On(gtk_event_controller_motion_new(), "motion", Move);
        On(gtk_event_controller_scroll_new(GTK_EVENT_CONTROLLER_SCROLL_VERTICAL), "scroll", Scroll);
        On(gtk_event_controller_legacy_new(), "event", Event);
        On(method, "commit", [](void*, const char* text, Self me) { me->Type(text); });
        On(clipboard, "changed", ReadClipboard);
        ReadClipboard(clipboard, this);
    }
    ~DesktopWidget() {
        embedding.reset();
        g_cancellable_cancel(ended);
        g_signal_handlers_disconnect_by_data(clipboard, this);
        while (g_source_remove_by_user_data(this)) continue;
        for (void* held : std::initializer_list<void*>{widget, method, ended}) g_object_unref(held);
    }
    void On(gpointer object, const char* signal, auto handler) {
        if (GTK_IS_EVENT_CONTROLLER(object)) gtk_widget_add_controller(widget, GTK_EVENT_CONTROLLER(object));
        g_signal_connect(object, signal, G_CALLBACK(+handler), this);
    }
    tvok::EmbeddingCalls Calls() {
        tvok::EmbeddingCalls to;
        to.wake = [this] { g_idle_add(TurnNow, this); };
        to.wait = [this](auto most) { Show(), TurnAfter(most), g_main_context_iteration(nullptr, true); };
        to.pointer = [this](auto is) { gtk_widget_set_cursor_from_name(widget, is == 3 ? "text" : nullptr); };
        to.readClipboard = [this] { return copied; };
        to.writeClipboard = [this](auto t) { copied = t, gdk_clipboard_set_text(clipboard, copied.c_str()); };
        return to;
    }
    void Turn() { over = !embedding->Turn(), Show(); }
    void Show() { // after input, and after the program touched a control
        if (!embedding->TakeDamage().empty()) gtk_widget_queue_draw(widget);
        TurnAfter(embedding->NextTurn());
    }
    void TurnAfter(std::optional<std::chrono::milliseconds> due) {
        if (timer) g_source_remove(timer);
        timer = due ? g_timeout_add(guint(due->count()), TurnNow, this) : 0;
    }
    static int TurnNow(gpointer me) { return Self(me)->Turn(), G_SOURCE_REMOVE; }
    static void Draw(GtkDrawingArea*, cairo_t* cairo, int, int, gpointer me) {
        const auto [pixels, width, height, row] = Self(me)->embedding->Pixels();
        auto* bytes = reinterpret_cast<unsigned char*>(const_cast<std::uint32_t*>(pixels)); // only read
        auto* image =
            cairo_image_surface_create_for_data(bytes, CAIRO_FORMAT_RGB24, width, height, int(row * 4));
        cairo_set_source_surface(cairo, image, 0, 0);
        cairo_pattern_set_filter(cairo_get_source(cairo), CAIRO_FILTER_NEAREST); // sharp at any scale factor
        cairo_paint(cairo);
        cairo_surface_destroy(image);
    }
    static void Move(void*, double x, double y, Self me) {
        me->embedding->MouseMove(int(x), int(y)), me->Turn();
    }
    static int Scroll(void*, double, double y, Self me) {
        me->wheel -= y;
        me->Input().Wheel(int(me->wheel));
        me->wheel -= int(me->wheel);
        return me->Turn(), true;
    }
    static int Event(void*, GdkEvent* event, Self me) {
        const GdkEventType type = gdk_event_get_event_type(event);
        if (type == GDK_BUTTON_PRESS || type == GDK_BUTTON_RELEASE)
            me->Button(event, type == GDK_BUTTON_PRESS);
        else if (type == GDK_KEY_PRESS || type == GDK_KEY_RELEASE)
            me->Key(event, type == GDK_KEY_PRESS);
        else
            return false;
        return me->Turn(), true;
    }
    void Button(GdkEvent* event, bool down) {
        const guint number = gdk_button_event_get_button(event); // left, middle, right
        if (number < 1 || number > 3) return;
        gtk_widget_grab_focus(widget);
        const auto button = tvok::desktop::MouseButton("\0\1\4\2"[number]);
        down ? Input().MouseDown(button) : Input().MouseUp(button);
    }
    void Key(GdkEvent* event, bool down) { // one that the input method only composes with is not the form's
        key = tvok::desktop::VirtualKeyOfKeysym(gdk_key_event_get_keyval(event));
        if (!down && key) Input().KeyUp(key);
        if (down && !gtk_im_context_filter_keypress(method, event)) KeyDown();
        key = 0;
    }
    void KeyDown() { key ? Input().KeyDown(std::exchange(key, 0)) : void(); }
    void Type(const char* text) { KeyDown(), Input().Text(text), Turn(); }
    void Focus() {
        const bool in = gtk_widget_has_focus(widget);
        in ? gtk_im_context_focus_in(method) : gtk_im_context_focus_out(method);
        in ? embedding->FocusIn() : embedding->FocusOut();
        Turn();
    }
    static void ReadClipboard(GdkClipboard* from, Self me) { // which GTK does in the background
        const auto read = [](GObject* clipboard, GAsyncResult* result, gpointer to) {
            char* text = gdk_clipboard_read_text_finish(GDK_CLIPBOARD(clipboard), result, nullptr);
            if (text) Self(to)->copied = text;
            g_free(text);
        };
        gdk_clipboard_read_text_async(from, me->ended, read, me);
    }
    tvok::desktop::Input& Input() { return embedding->desktop().Input(); }
    GtkWidget* widget = GTK_WIDGET(g_object_ref_sink(gtk_drawing_area_new()));
    GtkIMContext* method = gtk_im_multicontext_new();
    GdkClipboard* clipboard = gtk_widget_get_clipboard(widget);
    GCancellable* ended = g_cancellable_new();
    std::string copied;
    double wheel = 0; // notches, in part
    int key = 0;      // pressed, and not fed yet
    guint timer = 0;
    bool over = false;
    std::unique_ptr<tvok::Embedding> embedding;
};

int main() {
    gtk_init();
    DesktopWidget view;
    auto& form = view.embedding->desktop().AddForm("Stock", 320, 200);
    view.embedding->Fill(form);
    form.Add<tvok::TextBox>("name", {8, 8, 150, 20});
    form.Add<tvok::ucColorSelector>("color", {166, 8, 146, 20});
    auto& list = form.Add<tvok::qRoster>("list", {8, 36, 304, 156});
    for (int i = 1; i <= 40; ++i) list.AddItem(0, {.text = "Item " + std::to_string(i)});
    list.Refresh();
    form.events.Resize = [&] { form.Place(list, {8, 36, form.Width() - 16, form.Height() - 44}); };
    auto* window = GTK_WINDOW(gtk_window_new());
    list.events.Change = [&](int, auto& item) { gtk_window_set_title(window, item.text.c_str()); };
    gtk_window_set_default_size(window, 320, 200);
    gtk_window_set_child(window, view.widget);
    const auto close = +[](void*, DesktopWidget* me) { return me->embedding->CloseRequest(), me->Turn(), 1; };
    g_signal_connect(window, "close-request", G_CALLBACK(close), &view);
    gtk_window_present(window);
    const std::jthread other([&] { view.embedding->desktop().Post([&] { list.ListIndex(3); }); });
    while (!view.over) g_main_context_iteration(nullptr, true);
    gtk_window_destroy(window);
    return 0;
}

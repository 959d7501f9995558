// A form inside a Qt 6 widget. With "--headless FILE" it clicks itself, saves a picture and checks what
// changed.

#include <array>

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>
#include <QWidget>

#include <tvok/host/desktop/Embedding.h>
#include <tvok/tvok.h>

// Virtual key codes of Qt's keys from Key_Escape, Key_Home and Key_Shift on.
constexpr std::array Editing{27, 9, 9, 8, 13, 13, 45, 46};
constexpr std::array Moving{36, 35, 37, 38, 39, 40, 33, 34};
constexpr std::array Shifts{16, 17, 0, 18};

int VirtualKeyOf(int key) {
    if (key >= Qt::Key_Escape && key <= Qt::Key_Delete) return Editing.at(std::size_t(key - Qt::Key_Escape));
    if (key >= Qt::Key_Home && key <= Qt::Key_PageDown) return Moving.at(std::size_t(key - Qt::Key_Home));
    if (key >= Qt::Key_Shift && key <= Qt::Key_Alt) return Shifts.at(std::size_t(key - Qt::Key_Shift));
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return 112 + key - Qt::Key_F1;
    return key == ' ' || (key >= '0' && key <= '9') || (key >= 'A' && key <= 'Z') ? key : 0;
}

class DesktopWidget : public QWidget {
public:
    DesktopWidget() : embedding_({}, tvok::Embedding::Layout::OneSurface, Calls()) {
        setFocusPolicy(Qt::StrongFocus);
        setMouseTracking(true);
        setAttribute(Qt::WA_OpaquePaintEvent);
        timer_.setSingleShot(true);
        connect(&timer_, &QTimer::timeout, this, [this] { Turn(); });
    }
    tvok::Embedding& embedding() { return embedding_; }

    void Turn() {
        if (!embedding_.Turn()) close();
        Show();
    }
    /// After input, and after the program touched a control.
    void Show() {
        for (const tvok::tvok_Rect& rect : embedding_.TakeDamage())
            update(rect.Left, rect.Top, rect.Right - rect.Left, rect.bottom - rect.Top);
        const auto next = embedding_.NextTurn();
        next ? timer_.start(*next) : timer_.stop();
    }

    void paintEvent(QPaintEvent* event) override {
        const tvok::EmbeddedPixels pixels = embedding_.Pixels();
        const QImage image(reinterpret_cast<const uchar*>(pixels.data), pixels.width, pixels.height,
                           pixels.stride * 4, QImage::Format_RGB32);
        QPainter(this).drawImage(event->rect(), image, event->rect());
    }
    void resizeEvent(QResizeEvent*) override { embedding_.Resize(width(), height()), Turn(); }
    void focusInEvent(QFocusEvent*) override { embedding_.FocusIn(), Turn(); }
    void focusOutEvent(QFocusEvent*) override { embedding_.FocusOut(), Turn(); }
    bool focusNextPrevChild(bool) override { return false; } // Tab is the form's
    void mouseMoveEvent(QMouseEvent* event) override { Move(event->position()), Turn(); }
    void mousePressEvent(QMouseEvent* event) override { Button(*event, true); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { Button(*event, true); }
    void mouseReleaseEvent(QMouseEvent* event) override { Button(*event, false); }
    void wheelEvent(QWheelEvent* event) override {
        Move(event->position());
        wheel_ += event->angleDelta().y();
        Input().Wheel(wheel_ / 120);
        wheel_ %= 120;
        Turn();
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (const int key = VirtualKeyOf(event->key())) Input().KeyDown(key);
        const QString text = event->text();
        if (!text.isEmpty() && text[0].isPrint()) Input().Text(text.toStdString());
        Turn();
    }
    void keyReleaseEvent(QKeyEvent* event) override {
        if (const int key = VirtualKeyOf(event->key()); key && !event->isAutoRepeat()) Input().KeyUp(key);
        Turn();
    }

private:
    tvok::EmbeddingCalls Calls() {
        tvok::EmbeddingCalls calls;
        const auto turn = [this] { Turn(); };
        calls.wake = [this, turn] { QMetaObject::invokeMethod(&timer_, turn, Qt::QueuedConnection); };
        calls.wait = [this](std::chrono::milliseconds longest) {
            Show();
            timer_.start(longest);
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        };
        calls.pointer = [this](auto shape) { setCursor(shape == 3 ? Qt::IBeamCursor : Qt::ArrowCursor); };
        calls.readClipboard = [] { return QApplication::clipboard()->text().toStdString(); };
        calls.writeClipboard = [](std::string_view text) {
            QApplication::clipboard()->setText(QString::fromUtf8(text.data(), qsizetype(text.size())));
        };
        return calls;
    }
    void Button(const QMouseEvent& event, bool down) {
        Move(event.position());
        const auto button = tvok::desktop::MouseButton(event.button()); // the same numbers
        down ? Input().MouseDown(button) : Input().MouseUp(button);
        Turn();
    }
    tvok::desktop::Input& Input() { return embedding_.desktop().Input(); }
    void Move(QPointF place) { embedding_.MouseMove(int(place.x()), int(place.y())); }

    QTimer timer_;
    int wheel_ = 0;
    tvok::Embedding embedding_;
};

/// What a user does, by events of Qt. Gives whether all of it arrived, and saves what it looks like.
bool TryOut(DesktopWidget& view, const tvok::qRoster& list, const tvok::TextBox& name, const char* file) {
    const auto click = [&](QPointF at) {
        QMouseEvent down(QEvent::MouseButtonPress, at, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QMouseEvent up(QEvent::MouseButtonRelease, at, at, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &down);
        QApplication::sendEvent(&view, &up);
    };
    click({40, 70}); // the list's second item
    const QImage before = view.grab().toImage();
    click({40, 16}); // the text box
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier, "A");
    QApplication::sendEvent(&view, &key);
    click({280, 18}); // a button of the colour selector, which opens its grid
    const QImage after = view.grab().toImage();
    const bool popup = before.copy(180, 60, 120, 60) != after.copy(180, 60, 120, 60);
    return after.save(file) && popup && list.ListIndex() == 2 && name.Text() == "A";
}

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    DesktopWidget view;
    auto& form = view.embedding().desktop().AddForm("Stock", 320, 200);
    view.embedding().Fill(form);
    auto& name = form.Add<tvok::TextBox>("name", {8, 8, 150, 20});
    form.Add<tvok::ucColorSelector>("color", {166, 8, 146, 20});
    auto& list = form.Add<tvok::qRoster>("list", {8, 36, 304, 156});
    for (const char* text : {"Apples", "Bananas", "Cherries", "Dates"}) list.AddItem(0, {.text = text});
    list.Refresh();
    view.resize(320, 200);
    view.show();
    if (argc == 3) return TryOut(view, list, name, argv[2]) ? 0 : 1;
    return QApplication::exec();
}

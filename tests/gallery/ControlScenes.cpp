#include "gallery/ControlScenes.h"

#include "calendar/DateButton.h"
#include "lectures/CustomTableCellView.h"
#include "lectures/LectureTable.h"
#include "lectures/WindowWidths.h"
#include "store/LectureInfoItem.h"
#include "support/LectureBuilder.h"
#include "widgets/ControlPainting.h"
#include "widgets/CustomButton.h"
#include "widgets/MouseDownTextField.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QEnterEvent>
#include <QEvent>
#include <QFile>
#include <QHoverEvent>
#include <QSlider>
#include <QStyle>
#include <QTest>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace tarvelo::tests {

namespace {

// To one that paints what it noticed. Days do not take part: of a month of them one would see no
// more than their frames.
void bringMouse(widgets::CustomButton &button, bool isThere)
{
    if (qobject_cast<calendar::DateButton *>(&button))
        return;
    QEnterEvent entering({1, 1}, {1, 1}, {1, 1});
    QEvent leaving(QEvent::Leave);
    QCoreApplication::sendEvent(&button, isThere ? &entering : &leaving);
}

// Onto the knob, and pressed there or let go.
void bringMouse(QSlider &slider, bool isThere, bool isDown)
{
    constexpr int Knob = widgets::SliderHandleSide;
    const bool isMirrored = slider.invertedAppearance() != slider.isRightToLeft();
    const int at =
        QStyle::sliderPositionFromValue(slider.minimum(), slider.maximum(), slider.sliderPosition(),
                                        slider.width() - Knob, isMirrored);
    const QPoint knob(at + Knob / 2, slider.height() / 2);
    const QPointF nowhere(-1, -1);
    slider.setAttribute(Qt::WA_UnderMouse, isThere);
    QHoverEvent entering(QEvent::HoverEnter, knob, slider.mapToGlobal(knob), nowhere);
    QHoverEvent leaving(QEvent::HoverLeave, nowhere, nowhere, knob);
    QCoreApplication::sendEvent(&slider, isThere ? &entering : &leaving);
    if (isDown == slider.isSliderDown())
        return;
    // The keyboard stays where it is.
    const Qt::FocusPolicy policy = slider.focusPolicy();
    slider.setFocusPolicy(Qt::NoFocus);
    if (isDown)
        QTest::mousePress(&slider, Qt::LeftButton, {}, knob);
    else
        QTest::mouseRelease(&slider, Qt::LeftButton, {}, knob);
    slider.setFocusPolicy(policy);
}

// No window becomes the active one while a pop-over is open.
void activate(QWidget &window)
{
    while (QWidget *popOver = QApplication::activePopupWidget())
        popOver->close();
    window.activateWindow();
    static_cast<void>(QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }));
}

class Controls final
{
public:
    using Look = std::function<void(const QString &, QWidget &)>;

    Controls(Application &program, const Look &look)
        : m_program(program)
        , m_look(look)
    {
    }

    void manyLectures() const;
    void playing() const;
    void copies() const;
    void controls() const;

private:
    void look(const QString &name, QWidget &window) const
    {
        window.show();
        QCoreApplication::sendPostedEvents();
        m_look(name, window);
    }
    void showDay(int day) const;
    void lookAtControls(const QString &name, QWidget &window) const;
    void lookAtKeyboard(const QString &name, QWidget &window) const;
    lectures::CustomTableCellView &firstRow() const
    {
        auto &table = *m_program.windows.mainOutlets().tblRecordSubjectList;
        return *table.viewAtColumnRowMakeIfNecessary(0, 0, true);
    }

    Application &m_program;
    const Look &m_look;
};

void Controls::showDay(int day) const
{
    calendar::CKCalendarView &calendar = *m_program.windows.mainOutlets().calendarView;
    calendar.dateButtonPressed(calendar.dateButtons().at(static_cast<std::size_t>(day - 1)));
}

// The list scrolls.
void Controls::manyLectures() const
{
    m_program.controller.goToCalendarView(nullptr);
    m_program.window().setFrameWidth(lectures::ListShownWidth, false);
    for (int at = 1; at <= 12; ++at)
        aLecture().named("Linear algebra").on("2024-03-06").insertInto(m_program.database);
    showDay(6);
    look(u"main-many"_s, m_program.window());
}

void Controls::playing() const
{
    const QString path = makeTake(m_program);
    const auto lecture = aLecture().named("Fourier series").on("2024-03-07").withAudio(path);
    lecture.insertInto(m_program.database);
    showDay(7);
    m_program.engine.playerDuration = 5465;
    firstRow().btnPlay()->click();
    m_program.engine.playedSeconds = 1822;
    m_program.clock.advance(1s);
    QWidget &window = *m_program.windows.playAudioOutlets().playAudioWindow;
    look(u"play-playing"_s, window);
    lookAtControls(u"play-playing"_s, window);
    lookAtKeyboard(u"play-playing"_s, window);
    m_program.controller.openPlayEditWindow(firstRow().btnEdit());
    m_program.window().setFrameWidth(lectures::ExpandedWidth, false);
    look(u"lecture-with-audio"_s, m_program.window());
    activate(m_program.window());
    m_program.windows.lectureViewOutlets().tSubjectName->setFocus(Qt::TabFocusReason);
    look(u"lecture-heading-keyboard"_s, m_program.window());
    m_program.window().setFrameWidth(lectures::ListShownWidth, false);
}

// After lectures went at once, there is a copy of them.
void Controls::copies() const
{
    const store::LectureInfoItem lecture(u"Any"_s, QString(), QString(), QString(), false);
    for (const auto &pause : {1h, 2h}) {
        for (const char *name : {"Logic", "Ethics"})
            aLecture().named(name).withoutAudio().insertInto(m_program.database);
        m_program.clock.advance(pause);
        m_program.database.deleteVoiceData(lecture);
    }
    m_program.delegate.menus().action(app::Command::BringLecturesBack)->trigger();
    auto &bringBack = *m_program.window().findChild<QDialog *>(u"bringBackSheet"_s);
    look(u"bring-back-copies"_s, bringBack);
    bringBack.close();
}

void Controls::controls() const
{
    QWidget &newLecture = *m_program.windows.newLectureOutlets().newNoteWindow;
    QWidget &preferences = *m_program.delegate.preferences().preferrenceWindow();
    preferences.hide();
    m_program.controller.onAddItem(nullptr);
    lookAtControls(u"new-lecture"_s, newLecture);
    lookAtKeyboard(u"new-lecture"_s, newLecture);
    newLecture.hide();
    lookAtControls(u"main"_s, m_program.window());
    lookAtKeyboard(u"main"_s, m_program.window());
    m_program.delegate.menus().action(app::Command::ShowPreferences)->trigger();
    lookAtControls(u"preferences"_s, preferences);
    activate(preferences);
    preferences.setAttribute(Qt::WA_KeyboardFocusChange);
    preferences.findChild<QWidget *>(u"windowOnTop"_s)->setFocus(Qt::TabFocusReason);
    look(u"preferences-keyboard"_s, preferences);
    preferences.hide();
}

// All at once, as each is under the mouse and while it is pressed.
void Controls::lookAtControls(const QString &name, QWidget &window) const
{
    const auto buttons = window.findChildren<QAbstractButton *>();
    const auto setAll = [&](bool underMouse, bool down) {
        for (QAbstractButton *button : buttons) {
            button->setAttribute(Qt::WA_UnderMouse, underMouse && button->isEnabled());
            if (auto *arrow = qobject_cast<widgets::CustomButton *>(button))
                bringMouse(*arrow, underMouse && button->isEnabled());
            button->setDown(down && button->isEnabled());
        }
        for (QSlider *slider : window.findChildren<QSlider *>())
            bringMouse(*slider, underMouse && slider->isEnabled(), down && slider->isEnabled());
    };
    setAll(true, false);
    look(name + u"-controls-under-the-mouse"_s, window);
    setAll(true, true);
    look(name + u"-controls-pressed"_s, window);
    setAll(false, false);
}

void Controls::lookAtKeyboard(const QString &name, QWidget &window) const
{
    activate(window);
    window.setAttribute(Qt::WA_KeyboardFocusChange);
    for (int tabs = 0; tabs < 3; ++tabs)
        QTest::keyClick(&window, Qt::Key_Tab);
    look(name + u"-keyboard"_s, window);
}

} // namespace

QString makeTake(const Application &program)
{
    const QString path = program.home.folder() + u"/take.m4a"_s;
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write("sound");
    return path;
}

void goThroughControls(Application &program,
                       const std::function<void(const QString &, QWidget &)> &look)
{
    const Controls controls(program, look);
    controls.manyLectures();
    controls.playing();
    controls.copies();
    controls.controls();
}

} // namespace tarvelo::tests

#include "host/question/question_desk.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QLabel>
#include <chrono>
#include <utility>

#include "host/terminal/terminal.h"
#include "host/text/text.h"

namespace orvik::host {
namespace {

constexpr std::chrono::milliseconds kTerminalInterval(100);

// The dialog's object names, which style sheets use too.
constexpr QLatin1String kTitleName("generic_input_header_label");
constexpr QLatin1String kTextName("generic_input_instruction_label");
constexpr QLatin1String kButtonPrefix("generic_input_button_");

QString LabelText(const QDialog& dialog, QLatin1String name) {
  const auto* const label = dialog.findChild<QLabel*>(name);
  return label == nullptr ? QString() : label->text();
}

std::optional<QuestionAnswer> AnswerOf(const QAbstractButton& button) {
  const QString name = button.objectName();
  return name.startsWith(kButtonPrefix) ? AnswerNamed(name.mid(kButtonPrefix.size())) : std::nullopt;
}

// Said only here: without a question nobody misses the display that was asked for.
void NoteMissingDisplay() {
  const QString wanted = qEnvironmentVariable("QT_QPA_PLATFORM").remove(QLatin1String(";offscreen"));
  if (wanted.startsWith(QLatin1String("offscreen")) || wanted.startsWith(QLatin1String("minimal"))) return;
  const QString note = QCoreApplication::translate("orvik-diag", "Could not open a window for the question (%1)")
                           .arg(QStringLiteral("QT_QPA_PLATFORM=") + wanted);
  Write(Stream::Error, QStringLiteral("%1: %2\n").arg(QCoreApplication::applicationName(), note).toUtf8());
}

// Whether the windows of this program appear on a screen.
bool HasDisplay() {
  const QString platform = QGuiApplication::platformName();
  return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

}  // namespace

QuestionDesk::QuestionDesk(std::optional<QuestionAnswer> beforehand, std::function<void(bool)> onTerminal)
    : beforehand_(beforehand), onTerminal_(std::move(onTerminal)) {
  connect(&terminalTimer_, &QTimer::timeout, this, [this] { ReadTerminal(); });
  QCoreApplication::instance()->installEventFilter(this);
}

QuestionDesk::~QuestionDesk() {
  QCoreApplication::instance()->removeEventFilter(this);
}

std::optional<AskedQuestion> QuestionDesk::Ask(core::InputInteraction& question) {
  const std::lock_guard turn(turn_);
  {
    const std::lock_guard lock(mutex_);
    expecting_ = true;
    asked_.reset();
  }
  question.Interact();
  const std::lock_guard lock(mutex_);
  expecting_ = false;
  return std::exchange(asked_, std::nullopt);
}

bool QuestionDesk::eventFilter(QObject* watched, QEvent* event) {
  // A dialog may be shown more than once before it runs.
  if (event->type() == QEvent::Show && watched != dialog_) {
    auto* const dialog = qobject_cast<QDialog*>(watched);
    if (dialog != nullptr && dialog->isWindow()) Take(*dialog);
  }
  return false;
}

void QuestionDesk::Take(QDialog& dialog) {
  {
    const std::lock_guard lock(mutex_);
    if (!expecting_ || asked_) return;
    dialog_ = &dialog;
    asked_ = AskedQuestion{LabelText(dialog, kTitleName), LabelText(dialog, kTextName), Choices(), std::nullopt};
  }
  for (QAbstractButton* const button : Buttons()) {
    connect(button, &QAbstractButton::clicked, this, [this, answer = AnswerOf(*button)] {
      const std::lock_guard lock(mutex_);
      if (asked_) asked_->answer = answer;
    });
  }
  connect(&dialog, &QObject::destroyed, this, [this] { LeaveTerminal(); });
  // Delayed until the dialog runs its own event loop, because only then can it be closed.
  QTimer::singleShot(0, this, [this] { Serve(); });
}

void QuestionDesk::Serve() {
  if (dialog_ == nullptr) return;
  if (beforehand_) return Press(*beforehand_);
  if (HasDisplay()) return;  // the user answers in the window
  onTerminal_(true);
  NoteMissingDisplay();
  if (IsInputTerminal() && IsTerminal(Stream::Error)) return AskOnTerminal();
  onTerminal_(false);
  dialog_->close();
}

void QuestionDesk::Press(QuestionAnswer wanted) {
  for (QAbstractButton* const button : Buttons()) {
    if (AnswerOf(*button) == wanted) {
      button->click();
      return;
    }
  }
  dialog_->close();
}

void QuestionDesk::AskOnTerminal() {
  onTerminal_(true);
  const QString question =
      QStringLiteral("%1\n%2\n[%3] ")
          .arg(LabelText(*dialog_, kTitleName), LabelText(*dialog_, kTextName), Choices().join(QLatin1Char('/')));
  Write(Stream::Error, question.toUtf8());
  terminalTimer_.start(kTerminalInterval);
}

void QuestionDesk::ReadTerminal() {
  if (dialog_ == nullptr) return LeaveTerminal();
  const InputLine input = PollInputLine();
  if (input.state == InputLine::State::Ended) {
    dialog_->close();
  } else if (input.state == InputLine::State::Line) {
    const std::optional<QuestionAnswer> answer = AnswerNamed(input.text.trimmed());
    bool known = false;
    for (const QAbstractButton* const button : Buttons()) known = known || (answer && AnswerOf(*button) == answer);
    if (known) {
      Press(*answer);
    } else {
      AskOnTerminal();
    }
  }
}

void QuestionDesk::LeaveTerminal() {
  if (!terminalTimer_.isActive()) return;
  terminalTimer_.stop();
  onTerminal_(false);
}

QStringList QuestionDesk::Choices() const {
  QStringList choices;
  for (const QAbstractButton* const button : Buttons()) choices += QLatin1String(NameOf(*AnswerOf(*button)));
  return choices;
}

QList<QAbstractButton*> QuestionDesk::Buttons() const {
  QList<QAbstractButton*> buttons;
  for (QAbstractButton* const button : dialog_->findChildren<QAbstractButton*>()) {
    if (AnswerOf(*button)) buttons += button;
  }
  return buttons;
}

}  // namespace orvik::host

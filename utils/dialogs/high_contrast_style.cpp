#include "utils/dialogs/high_contrast_style.h"

#include <QLatin1String>
#include <QStringList>
#include <algorithm>
#include <array>
#include <map>
#include <vector>

namespace orvik::utils {

namespace {

using Declarations = std::map<QString, QString>;
using Rules = std::map<QString, Declarations>;

Declarations ParseDeclarations(const QString& body) {
  Declarations declarations;
  for (const QString& text : body.split(u';', Qt::SkipEmptyParts)) {
    const qsizetype colon = text.indexOf(u':');
    if (colon < 0) continue;
    const QString property = text.left(colon).trimmed();
    // The value may contain colons, as resource paths do.
    if (!property.isEmpty()) declarations[property] = text.mid(colon + 1).trimmed();
  }
  return declarations;
}

Rules Parse(const QString& styleSheet) {
  Rules rules;
  for (const QString& text : styleSheet.split(u'}', Qt::SkipEmptyParts)) {
    const QStringList parts = text.split(u'{');
    const QString selector = parts.first().trimmed();
    if (parts.size() < 2 || selector.isEmpty()) continue;
    Declarations& rule = rules[selector];
    for (const auto& [property, value] : ParseDeclarations(parts.at(1))) rule[property] = value;
  }
  return rules;
}

QString Serialise(const Rules& rules) {
  QString text;
  for (const auto& [selector, declarations] : rules) {
    text += selector + u'{';
    for (const auto& [property, value] : declarations) text += property + u':' + value + u';';
    text += u'}';
  }
  return text;
}

// `selector` with `state`, such as ":hover", appended to each of its comma-separated parts.
QString WithState(const QString& selector, const QString& state) {
  QStringList parts;
  for (const QString& part : selector.split(u',')) parts.append(part.trimmed() + state);
  return parts.join(QStringLiteral(", "));
}

QString Solid(const QString& color) {
  return QStringLiteral("1px solid ") + color;
}

/// Rewrites the rules of one style sheet.
class Rewriter {
 public:
  Rewriter(Rules rules, const HighContrastColors& colors) : rules_(std::move(rules)), colors_(colors) {}

  Rules Rewritten() {
    // Only the sheet's own rules: those that the rewriting adds are final.
    std::vector<QString> selectors;
    for (const auto& [selector, rule] : rules_) selectors.push_back(selector);
    for (const QString& selector : selectors) Rewrite(selector);
    return std::move(rules_);
  }

 private:
  void Rewrite(const QString& selector) {
    if (selector.startsWith(u"QWidget#")) RewriteContainer(selector);
    if (selector.startsWith(u"QLabel#")) RewriteLabel(selector);
    if (selector.startsWith(u"QPushButton")) RewriteButton(selector);
    if (selector.contains(u"header_close")) RewriteCloseButton(selector);
    if (selector.contains(u"objectName*=")) rules_[selector].erase(QStringLiteral("border-color"));
    if (selector.contains(u":focus")) {
      Declarations& rule = rules_[WithState(selector, QStringLiteral(":focus"))];
      SetFocusRing(rule);
      rule[QStringLiteral("border-radius")] = QStringLiteral("8px");
    }
    if (IsInput(selector)) {
      Declarations& rule = rules_[selector];
      rule[QStringLiteral("color")] = colors_.highlightText;
      rule[QStringLiteral("background-color")] = colors_.buttonFace;
      rule[QStringLiteral("border")] = Solid(colors_.buttonFace);
    }
  }

  static bool IsInput(const QString& selector) {
    static constexpr std::array kInputs = {u"QSpinBox#", u"QComboBox#", u"QRadioButton#", u"QLCDNumber#",
                                           u"QStackedWidget#"};
    return std::ranges::any_of(kInputs, [&](const auto* each) { return selector.startsWith(QStringView(each)); });
  }

  void RewriteContainer(const QString& selector) {
    Declarations& rule = rules_[selector];
    rule[QStringLiteral("background-color")] = colors_.background;
    if (!selector.contains(u"border_widget")) return;
    rule[QStringLiteral("border-radius")] = QStringLiteral("4px");
    rule[QStringLiteral("border")] = Solid(colors_.windowText);
  }

  void RewriteLabel(const QString& selector) {
    struct State {
      QString name;
      QString color;
    };
    const std::array states = {State{QStringLiteral(":disabled"), colors_.grayText},
                               State{QStringLiteral(":selected"), colors_.highlightText},
                               State{QStringLiteral(":active"), colors_.infoText},
                               State{QStringLiteral(":focus"), colors_.windowText}};
    // Sorted before its states, the label's own rule has already set their colours.
    const bool isState = std::ranges::any_of(states, [&](const State& state) {
      return selector.endsWith(state.name) && rules_.contains(selector.chopped(state.name.size()));
    });
    if (isState) return;
    rules_[selector][QStringLiteral("color")] = colors_.windowText;
    for (const State& state : states) {
      const auto found = rules_.find(selector + state.name);
      if (found == rules_.end()) continue;
      found->second[QStringLiteral("color")] = state.color;
      if (state.name == u":focus") SetFocusRing(found->second);
    }
  }

  void RewriteButton(const QString& selector) {
    Declarations& rule = rules_[selector];
    const bool hover = selector.contains(u":hover");
    rule[QStringLiteral("color")] = hover ? colors_.buttonFace : colors_.buttonText;
    rule[QStringLiteral("background-color")] = hover ? colors_.highlight : colors_.buttonFace;
    rule[QStringLiteral("border")] = hover ? QStringLiteral("none") : Solid(colors_.buttonText);
  }

  // Round, to set it apart from the answer buttons.
  void RewriteCloseButton(const QString& selector) {
    Declarations& rule = rules_[selector];
    rule[QStringLiteral("border-radius")] = QStringLiteral("14px");
    rule.erase(QStringLiteral("animation"));
    rule.erase(QStringLiteral("border-style"));
    Declarations& hover = rules_[WithState(selector, QStringLiteral(":hover"))];
    hover[QStringLiteral("background-color")] = colors_.highlight;
    hover[QStringLiteral("border")] = QStringLiteral("none");
  }

  void SetFocusRing(Declarations& rule) const {
    rule[QStringLiteral("border")] = QStringLiteral("2px solid");
    rule[QStringLiteral("outline-style")] = QStringLiteral("none");
    rule[QStringLiteral("border-color")] = colors_.highlight;
  }

  Rules rules_;
  const HighContrastColors& colors_;
};

// The first double-quoted part of a value; empty when there is none.
QString QuotedPath(const QString& value) {
  const qsizetype open = value.indexOf(u'"');
  const qsizetype close = open < 0 ? -1 : value.indexOf(u'"', open + 1);
  return close < 0 ? QString() : value.mid(open + 1, close - open - 1);
}

void ReplaceIcons(Rules& rules, const IconReplacement& replaceIcon) {
  for (auto& [selector, declarations] : rules) {
    for (const QString& property : {QStringLiteral("image"), QStringLiteral("icon")}) {
      const auto found = declarations.find(property);
      if (found == declarations.end()) continue;
      const QString path = QuotedPath(found->second);
      if (path.isEmpty()) continue;
      if (const auto value = replaceIcon(found->second, path)) found->second = *value;
    }
  }
}

}  // namespace

QString HighContrastStyleSheet(const QString& styleSheet, const HighContrastColors& colors,
                               const IconReplacement& replaceIcon) {
  Rules rules = Rewriter(Parse(styleSheet), colors).Rewritten();
  ReplaceIcons(rules, replaceIcon);
  return Serialise(rules);
}

}  // namespace orvik::utils

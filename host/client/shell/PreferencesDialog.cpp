// SPDX-License-Identifier: MIT
#include "host/client/shell/PreferencesDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <utility>

#include <tarvik/bus/BusCall.h>
#include <tarvik/skin/Colours.h>

#include "host/client/shell/ZoneBox.h"

namespace Tarvik::Client {

PreferencesDialog::PreferencesDialog(QWidget* parent, const LanguageFiles& texts, const Preferences& current)
    : QDialog(parent), current_(current) {
    setObjectName("preferences");
    setWindowTitle(QString::fromStdString(texts.Text("Client", "PREFERENCES")));
    setMinimumWidth(420);
    auto* column = new QVBoxLayout(this);
    tabs_ = new QTabWidget(this);
    tabs_->setObjectName("preferencesTabs");
    tabs_->setTabBarAutoHide(true);
    tabs_->setDocumentMode(true);
    // The window system's line below the tabs is white in every look.
    tabs_->tabBar()->setDrawBase(false);
    column->addWidget(tabs_);
    BuildFields(texts);
    AddPages();
    AddButtons(texts);
}

void PreferencesDialog::FillChoices(const LanguageFiles& texts) {
    look_ = new QComboBox(this);
    for (const Skin::Theme theme : Skin::kThemes) {
        const QString name = QString::fromStdString(std::string(Skin::ThemeName(theme)));
        look_->addItem(QString::fromStdString(texts.Text("Client", ("LOOK_" + name.toUpper()).toStdString())),
                       name);
    }
    look_->setCurrentIndex(look_->findData(QString::fromStdString(current_.theme)));
    language_ = new QComboBox(this);
    for (const Language& language : texts.Offered()) {
        language_->addItem(QString::fromStdString(language.name), QString::fromStdString(language.code));
    }
    language_->setCurrentIndex(language_->findData(QString::fromStdString(current_.language)));
    zone_ = new ZoneBox(current_.language, current_.timeZone, this);
    server_ = new QLineEdit(QString::fromStdString(current_.server), this);
}

void PreferencesDialog::BuildFields(const LanguageFiles& texts) {
    const auto word = [&texts](const char* key) { return QString::fromStdString(texts.Text("Client", key)); };
    FillChoices(texts);
    auto* general = new QWidget(this);
    tabs_->addTab(general, word("PREF_GENERAL"));
    auto* form = new QFormLayout(general);
    form->setSpacing(8);
    zone_->setToolTip(word("PREF_ZONE_HINT"));
    zone_->lineEdit()->setPlaceholderText(word("PREF_ZONE_HINT"));
    server_->setPlaceholderText(word("PREF_SERVER_HINT"));
    server_->setToolTip(word("PREF_SERVER_NOTE"));
    const auto row = [&](const char* key, const char* name, QWidget* field) {
        field->setObjectName(name);
        field->setAccessibleName(word(key));
        form->addRow(word(key), field);
    };
    const auto line = [&](const QString& text, const char* name) {
        auto* label = new QLabel(text, this);
        label->setObjectName(name);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        form->addRow(QString(), label);
        return label;
    };
    row("PREF_LOOK", "lookChoice", look_);
    row("PREF_LANGUAGE", "languageChoice", language_);
    row("PREF_ZONE", "timeZoneChoice", zone_);
    zoneFault_ = {line({}, "zoneFault"), word("PREF_ZONE_FAULT")};
    line(word("PREF_ZONE_NOTE"), "zoneNote");
    row("PREF_SERVER", "serverAddress", server_);
    serverFault_ = {line({}, "serverFault"), word("PREF_SERVER_FAULT")};
    line(word("PREF_SERVER_NOTE"), "serverNote");
    zoneFault_.label->hide();
    serverFault_.label->hide();
    // Told when the field is left, since nobody has typed all of a word at its first letter; gone at once.
    connect(zone_->lineEdit(), &QLineEdit::editingFinished, this, &PreferencesDialog::IsZoneRight);
    connect(server_, &QLineEdit::editingFinished, this, &PreferencesDialog::IsServerRight);
    connect(zone_, &QComboBox::editTextChanged, this, [this] { zoneFault_.Tell(zone_, {}, true); });
    connect(server_, &QLineEdit::textChanged, this, [this] { serverFault_.Tell(server_, {}, true); });
}

void PreferencesDialog::FaultLine::Tell(QWidget* field, const QString& value, bool isRight) const {
    label->setText(isRight ? QString() : QString(text).replace("%1", value));
    label->setVisible(!isRight);
    field->setAccessibleDescription(label->text());
}

bool PreferencesDialog::IsZoneRight() {
    zone_->TakeMatch();
    zoneFault_.Tell(zone_, zone_->currentText().trimmed(), zone_->IsRight());
    return zone_->IsRight();
}

bool PreferencesDialog::IsServerRight() {
    const QString server = server_->text().trimmed();
    const bool isRight = server.isEmpty() || IsServerAddress(server.toStdString());
    serverFault_.Tell(server_, server, isRight);
    return isRight;
}

void PreferencesDialog::AddPages() {
    Interface::PreferencePages asked{this, {}};
    Interface::Raise(Interface::Bus::OpenPreferences, &asked);
    pages_ = std::move(asked.pages);
    for (const Interface::PreferencePage& page : pages_) {
        tabs_->addTab(page.page, QString::fromStdString(page.title));
    }
    fault_ = new QLabel(this);
    fault_->setObjectName("pageFault");
    fault_->setWordWrap(true);
    fault_->setTextFormat(Qt::PlainText);
    fault_->hide();
    layout()->addWidget(fault_);
}

void PreferencesDialog::AddButtons(const LanguageFiles& texts) {
    const auto word = [&texts](const char* key) { return QString::fromStdString(texts.Text("Client", key)); };
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(word("OK"));
    buttons->button(QDialogButtonBox::Ok)->setObjectName("preferencesOk");
    buttons->button(QDialogButtonBox::Cancel)->setText(word("CANCEL"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName("preferencesCancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &PreferencesDialog::Agree);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addWidget(buttons);
}

void PreferencesDialog::Agree() {
    // A zone that nobody knows would silently count as UTC, and an address of no known form as no server: the
    // first field that is wrong gets the keyboard.
    const bool isServerRight = IsServerRight();
    if (!IsZoneRight()) {
        return AskAgain(zone_->lineEdit());
    }
    if (!isServerRight) {
        return AskAgain(server_);
    }
    if (ArePagesRight()) {
        accept();
    }
}

bool PreferencesDialog::ArePagesRight() {
    for (const Interface::PreferencePage& page : pages_) {
        const QString fault = QString::fromStdString(page.check());
        if (!fault.isEmpty()) {
            tabs_->setCurrentWidget(page.page);
            fault_->setText(fault);
            fault_->show();
            return false;
        }
    }
    fault_->hide();
    return true;
}

void PreferencesDialog::TakePages() const {
    for (const Interface::PreferencePage& page : pages_) {
        page.take();
    }
}

void PreferencesDialog::AskAgain(QLineEdit* field) {
    tabs_->setCurrentIndex(0);
    field->setFocus();
    field->selectAll();
}

void PreferencesDialog::AskForServer() {
    server_->setFocus();
}

Preferences PreferencesDialog::Chosen() const {
    Preferences chosen = current_;
    chosen.language = language_->currentData().toString().toStdString();
    chosen.theme = look_->currentData().toString().toStdString();
    chosen.timeZone = zone_->Zone();
    chosen.server = server_->text().trimmed().toStdString();
    return chosen;
}

}  // namespace Tarvik::Client

// SPDX-License-Identifier: MIT
#include "host/client/shell/PreferencesDialog.h"

#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimeZone>
#include <QVBoxLayout>
#include <utility>

#include <tarvik/bus/BusCall.h>
#include <tarvik/util/DateTimeUtl.h>

namespace Tarvik::Client {

namespace {

QStringList ZoneNames(const std::string& current) {
    QStringList names{Util::kPlanZone, "UTC"};
    for (const QByteArray& id : QTimeZone::availableTimeZoneIds()) {
        const QString name = QString::fromLatin1(id);
        if (name.contains('/') && !name.startsWith("Etc/")) {
            names.append(name);
        }
    }
    if (!names.contains(QString::fromStdString(current))) {
        names.append(QString::fromStdString(current));
    }
    return names;
}

}  // namespace

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
    column->addWidget(tabs_);
    BuildFields(texts);
    AddPages();
    AddButtons(texts);
}

void PreferencesDialog::BuildFields(const LanguageFiles& texts) {
    const auto word = [&texts](const char* key) { return QString::fromStdString(texts.Text("Client", key)); };
    auto* general = new QWidget(this);
    tabs_->addTab(general, word("PREF_GENERAL"));
    auto* form = new QFormLayout(general);
    form->setSpacing(8);
    language_ = new QComboBox(this);
    for (const Language& language : texts.Offered()) {
        language_->addItem(QString::fromStdString(language.name), QString::fromStdString(language.code));
    }
    language_->setCurrentIndex(language_->findData(QString::fromStdString(current_.language)));
    zone_ = new QComboBox(this);
    zone_->setEditable(true);
    zone_->addItems(ZoneNames(current_.timeZone));
    zone_->completer()->setFilterMode(Qt::MatchContains);
    zone_->completer()->setCompletionMode(QCompleter::PopupCompletion);
    zone_->setCurrentText(QString::fromStdString(current_.timeZone));
    server_ = new QLineEdit(QString::fromStdString(current_.server), this);
    server_->setPlaceholderText(word("PREF_SERVER_HINT"));
    server_->setToolTip(word("PREF_SERVER_NOTE"));
    const auto row = [&](const char* key, const char* name, QWidget* field) {
        field->setObjectName(name);
        field->setAccessibleName(word(key));
        form->addRow(word(key), field);
    };
    const auto note = [&](const char* key, const char* name) {
        auto* label = new QLabel(word(key), this);
        label->setObjectName(name);
        label->setWordWrap(true);
        form->addRow(QString(), label);
    };
    row("PREF_LANGUAGE", "languageChoice", language_);
    row("PREF_ZONE", "timeZoneChoice", zone_);
    note("PREF_ZONE_NOTE", "zoneNote");
    row("PREF_SERVER", "serverAddress", server_);
    note("PREF_SERVER_NOTE", "serverNote");
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
    // field keeps the focus until it is one.
    if (!Util::DateTimeUtl::IsKnownZone(zone_->currentText().toStdString())) {
        return AskAgain(zone_->lineEdit());
    }
    const std::string server = server_->text().trimmed().toStdString();
    if (!server.empty() && !IsServerAddress(server)) {
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
    chosen.timeZone = zone_->currentText().toStdString();
    chosen.server = server_->text().trimmed().toStdString();
    return chosen;
}

}  // namespace Tarvik::Client

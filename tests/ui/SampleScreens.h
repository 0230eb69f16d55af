#pragma once

#include "components/SearchBarDietTableViewController.h"
#include "components/TabBarController.h"
#include "components/TableViewControllerWithEcternalPicker.h"

#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace kesto::test
{

/// A table with every kind of row, whose rows can be edited, deleted and moved. It writes down what it hears.
class SampleTable : public kesto::TableViewControllerWithEcternalPicker
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by Samples")
    Q_PROPERTY(QStringList heard READ heard NOTIFY heardChanged)

public:
    enum Section { Fields, Choices, Products, Action };

    /// longTexts: titles and values as long as they come in any language.
    explicit SampleTable(bool longTexts = false);

    [[nodiscard]] const QStringList &heard() const { return heard_; }

    [[nodiscard]] int numberOfSections() const override { return 4; }
    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;
    [[nodiscard]] QString titleForHeaderInSection(int section) const override;
    [[nodiscard]] QString titleForFooterInSection(int section) const override;

Q_SIGNALS:
    void heardChanged();

protected:
    void viewDidLoad() override;
    void didSelectRow(const IndexPath &path, const RowId &id) override;
    void textFieldDidEndEditing(const IndexPath &path, const RowId &id, const QString &text) override;
    void switchChanged(const IndexPath &path, const RowId &id, bool on) override;
    void accessoryTouched(const IndexPath &path, const RowId &id) override;
    void commitDelete(const IndexPath &path, const RowId &id) override;
    void moveRow(const IndexPath &from, const IndexPath &to) override;
    [[nodiscard]] int numberOfComponentsInPicker() const override { return 2; }
    [[nodiscard]] int numberOfRowsInComponent(int component) const override { return component == 0 ? 151 : 10; }
    [[nodiscard]] QString titleForRow(int row, int component) const override;
    [[nodiscard]] int selectedRowInComponent(int component) const override;
    void pickerDidSelectRow(int row, int component) override;

private:
    void hear(const QString &line);
    [[nodiscard]] TableRow choice(int row) const;

    bool long_;
    QStringList heard_;
    QString name_;
    QString days_ = QStringLiteral("5");
    int kilograms_ = 30;
    int tenths_ = 5;
    bool on_ = true;
    QStringList products_;
    QStringList bought_;
};

/// Products that can be searched and narrowed to a phase.
class SampleList : public kesto::SearchBarDietTableViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by Samples")

public:
    SampleList();

    [[nodiscard]] int numberOfRowsInSection(int) const override { return int(items().size()); }
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;

protected:
    void viewDidLoad() override;
    [[nodiscard]] QVariantList searchWithString(const QString &text, int scope) const override;
};

} // namespace kesto::test

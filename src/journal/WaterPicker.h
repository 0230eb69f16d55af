#pragma once

#include "journal/JornalButton.h"

namespace kesto
{

/// The eight portions of drink to choose from, each with the volume that is stored for it.
class WaterPicker : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QList<kesto::JornalButton *> buttons READ buttons CONSTANT)
public:
    enum class Mode {
        Touch,    ///< a touch is all there is to it; nothing stays selected
        Selection ///< a touch selects a portion, or nothing when it was selected before
    };

    explicit WaterPicker(Mode mode, QObject *parent = nullptr);

    [[nodiscard]] QList<JornalButton *> buttons() const { return buttons_.all(); }
    /// The key of the portion that is selected, or was touched last; 0 for none.
    [[nodiscard]] int selected() const { return selected_; }
    /// By the program; a key without a portion selects nothing.
    void setSelected(int key);
    /// The stored portions changed.
    void reloadTitles();

    /// By the user; a tag that no button has changes nothing.
    Q_INVOKABLE void touch(int tag);

Q_SIGNALS:
    /// The user touched a portion: selected() is the new choice.
    void valueChanged();

private:
    [[nodiscard]] bool selects() const { return mode_ == Mode::Selection; }

    const Mode mode_;
    JornalButtons buttons_;
    int selected_ = 0;
};

} // namespace kesto

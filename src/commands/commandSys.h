// Actions on files and widgets put off until their time has come, such as removing the files of a
// message once it was sent. They cannot be undone.
#pragma once

#include <QString>

#include <list>
#include <memory>

class QWidget;

class commandSys
{
public:
    commandSys() = default;
    commandSys(const commandSys &) = delete;
    commandSys &operator=(const commandSys &) = delete;
    virtual ~commandSys() = default;

    // The base does nothing.
    virtual void execute() {}
};

// Removes the file, if there is one.
class cmdRemoveFile : public commandSys
{
public:
    explicit cmdRemoveFile(const QString &path)
        : m_path(path)
    {
    }
    void execute() override;

private:
    QString m_path;
};

// Removes the folder with all it holds, if there is one.
class cmdRemoveFolder : public commandSys
{
public:
    explicit cmdRemoveFolder(const QString &path)
        : m_path(path)
    {
    }
    void execute() override;

private:
    QString m_path;
};

// Deletes the widget, which nothing else owns; null is nothing.
class cmdRemoveWidget : public commandSys
{
public:
    explicit cmdRemoveWidget(QWidget *widget)
        : m_widget(widget)
    {
    }
    void execute() override;

private:
    QWidget *m_widget;
};

// The actions of the whole program that are put off.
class pendingSysCommands
{
public:
    // Made on first use, and again after discardAll() or destroy().
    static pendingSysCommands &instance();

    void append(std::unique_ptr<commandSys> action);
    size_t size() const { return m_actions.size(); }

    // Carry out, or only discard, all actions from the first on. Nothing happens when there are
    // none.
    static void executeAll();
    static void discardAll();
    static void destroy();

private:
    std::list<std::unique_ptr<commandSys>> m_actions;
};

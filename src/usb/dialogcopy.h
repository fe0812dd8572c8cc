#ifndef KRM_USB_DIALOGCOPY_H
#define KRM_USB_DIALOGCOPY_H

#include <QDialog>
#include <QDir>
#include <functional>
#include <string>

class InfoBar;
class QLabel;
class QListWidget;
class QPushButton;

// What the two copy screens share: the walk through the stick's folders,
// which starts at the stick's mount point and never goes above it, and the
// buttons "Apri", "Indietro", "Conferma" and "Exit". The screens differ in
// which folder may be confirmed or entered and in the copy itself.
class DialogCopy : public QDialog
{
    Q_OBJECT
public:
    // The five data directories, in the order they are copied.
    static const char* const strDirDB[5];

public slots:
    void initializeDir();
    void selectDir();
    void upDir();
    void backDir();
    virtual void copyDataBaseTo() = 0;

protected:
    explicit DialogCopy(QWidget* parent);

    // The title and caption are the screen's own, in its own catalogue.
    void setTexts(const QString& title, const QString& caption);
    virtual bool mayEnter(const QString& name) const;
    virtual bool mayConfirm() const = 0;

    void readDir();
    void setBaseDir();
    bool rmDir(QString const& path);
    void keyPressEvent(QKeyEvent* event) override;
    // The copy: one script call per data directory under a progress dialog
    // that may be cancelled between directories, then the two closing boxes.
    void copyDirectories(const QString& label, const QString& boxTitle,
                         const std::function<std::string(const char* dir)>& commandLine);
    QString selectedName() const;
    bool atBase() const;

    QDir _dir;
    QString _baseDir;
    InfoBar* _infoBar;
    QLabel* _caption;
    QLabel* _folder;
    QListWidget* _listDir;
    QPushButton* _buttonOpen;
    QPushButton* _buttonBack;
    QPushButton* _buttonConfirm;
    QPushButton* _buttonExit;
};

#endif

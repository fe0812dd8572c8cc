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
// which folder may be confirmed or entered and in the copy itself. Every text
// is the screen's own, translated in the screen's catalogue: the two screens
// word their buttons and boxes each for itself.
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

    // What the screen shows, each text already translated by the screen.
    struct Texts {
        QString title; // also the label of the copy's progress
        QString caption;
        QString open, back, confirm, exit;
        QString cancel;   // the cancel button of the copy's progress
        QString boxTitle; // the two boxes after the copy
        QString finished, unplug;
    };
    void setTexts(const Texts& texts);
    virtual bool mayEnter(const QString& name) const;
    virtual bool mayConfirm() const = 0;

    void readDir();
    void setBaseDir();
    bool rmDir(QString const& path);
    void keyPressEvent(QKeyEvent* event) override;
    // The copy: one script call per data directory under a progress dialog
    // that may be cancelled between directories, then the two closing boxes.
    void copyDirectories(const std::function<std::string(const char* dir)>& commandLine);
    QString selectedName() const;
    bool atBase() const;

    Texts _texts;
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

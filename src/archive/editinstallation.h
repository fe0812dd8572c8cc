#ifndef KRM_ARCHIVE_EDITINSTALLATION_H
#define KRM_ARCHIVE_EDITINSTALLATION_H

#include "archive/installationform.h"

// Changes an installation chosen in SelectInstallation. The file keeps its
// name, also when "Installazione Id" changes; it is rewritten through the
// careful update.
class EditInstallation : public InstallationForm
{
    Q_OBJECT
public:
    EditInstallation(QWidget* parent, _listInstallation* node, _installation* installation);

public slots:
    void saveInstallation() override;
    // Puts the installation as it was given back into the form.
    void resetParameters() override;

private:
    _listInstallation* _node;
    _installation* _record;
};

#endif

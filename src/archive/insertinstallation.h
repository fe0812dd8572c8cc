#ifndef KRM_ARCHIVE_INSERTINSTALLATION_H
#define KRM_ARCHIVE_INSERTINSTALLATION_H

#include "archive/installationform.h"

// Enters a new installation. The form keeps what it holds after a save.
class InsertInstallation : public InstallationForm
{
    Q_OBJECT
public:
    explicit InsertInstallation(QWidget* parent);

public slots:
    void saveInstallation() override;
    void resetParameters() override;
};

#endif

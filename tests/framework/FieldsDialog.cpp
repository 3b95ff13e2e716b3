#include "FieldsDialog.h"

BEGIN_MESSAGE_MAP(FieldsDialog, CDialog)
    ON_EN_CHANGE(IDC_NAME, &FieldsDialog::OnNameChange)
    ON_EN_KILLFOCUS(IDC_NAME, &FieldsDialog::OnNameKillFocus)
    ON_BN_CLICKED(IDC_INNER, &FieldsDialog::OnInner)
    ON_BN_CLICKED(IDC_CHECK, &FieldsDialog::OnCheck)
    ON_MESSAGE(WM_APP, &FieldsDialog::OnPosted)
END_MESSAGE_MAP()

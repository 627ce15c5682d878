///File Description///
A4 with a border, a margin for binding and a title block.
///End File Description///
210x297Portrait

InsertSavedLineÿ0.75ÿ0.375ÿ7.875ÿ0.375ÿ8421504ÿDrawWidth=2
InsertSavedLineÿ7.875ÿ0.375ÿ7.875ÿ11.25ÿ8421504ÿDrawWidth=2
InsertSavedLineÿ7.875ÿ11.25ÿ0.75ÿ11.25ÿ8421504ÿDrawWidth=2
InsertSavedLineÿ0.75ÿ11.25ÿ0.75ÿ0.375ÿ8421504ÿDrawWidth=2
InsertSavedLineÿ4.125ÿ0.25ÿ4.125ÿ0.5ÿ8421504ÿ0
InsertSavedLineÿ4.125ÿ11.25ÿ4.125ÿ11.375ÿ8421504ÿ0
InsertSavedLineÿ0.625ÿ5.75ÿ0.875ÿ5.75ÿ8421504ÿ0
InsertSavedLineÿ7.75ÿ5.75ÿ8ÿ5.75ÿ8421504ÿ0
InsertSavedSquareÿ0.75ÿ10ÿ3.5ÿ11ÿ8421504ÿ0
InsertSavedLineÿ1.5ÿ10ÿ1.5ÿ11ÿ8421504ÿ0
InsertSavedLineÿ2.75ÿ10ÿ2.75ÿ11ÿ8421504ÿ0
InsertSavedLineÿ0.75ÿ10.25ÿ3.5ÿ10.25ÿ8421504ÿ0
InsertSavedLineÿ0.75ÿ10.5ÿ3.5ÿ10.5ÿ8421504ÿ0
InsertSavedLineÿ0.75ÿ10.75ÿ3.5ÿ10.75ÿ8421504ÿ0
InsertSavedSquareÿ0.75ÿ11ÿ2ÿ11.25ÿ8421504ÿ0
InsertSavedSquareÿ2ÿ11ÿ3.5ÿ11.25ÿ8421504ÿ0
InsertSavedSquareÿ3.5ÿ10ÿ7.875ÿ10.375ÿ8421504ÿ0
InsertSavedSquareÿ3.5ÿ10.375ÿ7.875ÿ10.875ÿ8421504ÿ0
InsertSavedSquareÿ3.5ÿ10.875ÿ5.625ÿ11.25ÿ8421504ÿ0
InsertSavedSquareÿ5.625ÿ10.875ÿ6.25ÿ11.25ÿ8421504ÿ0
InsertSavedSquareÿ6.25ÿ10.875ÿ6.875ÿ11.25ÿ8421504ÿ0
InsertSavedSquareÿ6.875ÿ10.875ÿ7.875ÿ11.25ÿ8421504ÿ0

NAMEÿ1.56ÿ10.078ÿ6316128ÿArialÿ6ÿFalseÿFalse
DATEÿ2.81ÿ10.078ÿ6316128ÿArialÿ6ÿFalseÿFalse
DRAWNÿ0.81ÿ10.328ÿ6316128ÿArialÿ6ÿFalseÿFalse
CHECKEDÿ0.81ÿ10.578ÿ6316128ÿArialÿ6ÿFalseÿFalse
APPROVEDÿ0.81ÿ10.828ÿ6316128ÿArialÿ6ÿFalseÿFalse
SCALEÿ0.81ÿ11.033ÿ6316128ÿArialÿ6ÿFalseÿFalse
PROJECTÿ2.06ÿ11.033ÿ6316128ÿArialÿ6ÿFalseÿFalse
COMPANYÿ3.56ÿ10.033ÿ6316128ÿArialÿ6ÿFalseÿFalse
TITLEÿ3.56ÿ10.408ÿ6316128ÿArialÿ6ÿFalseÿFalse
DRAWING TITLEÿ3.56ÿ10.561ÿ0ÿArialÿ14ÿTrueÿFalse
DRAWING NUMBERÿ3.56ÿ10.908ÿ6316128ÿArialÿ6ÿFalseÿFalse
0001ÿ3.56ÿ11.038ÿ0ÿArialÿ9ÿFalseÿFalse
REVÿ5.685ÿ10.908ÿ6316128ÿArialÿ6ÿFalseÿFalse
0ÿ5.685ÿ11.038ÿ0ÿArialÿ9ÿFalseÿFalse
SIZEÿ6.31ÿ10.908ÿ6316128ÿArialÿ6ÿFalseÿFalse
A4ÿ6.31ÿ11.038ÿ0ÿArialÿ9ÿFalseÿFalse
SHEETÿ6.935ÿ10.908ÿ6316128ÿArialÿ6ÿFalseÿFalse
1 OF 1ÿ6.935ÿ11.038ÿ0ÿArialÿ9ÿFalseÿFalse
///Picture Files///

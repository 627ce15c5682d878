///File Description///
Letter size across, with numbered columns and a title block.
///End File Description///
8.5x11Landscape

InsertSavedLineÿ0.5ÿ0.5ÿ10.5ÿ0.5ÿ8421504ÿDrawWidth=2
InsertSavedLineÿ10.5ÿ0.5ÿ10.5ÿ8ÿ8421504ÿDrawWidth=2
InsertSavedLineÿ10.5ÿ8ÿ0.5ÿ8ÿ8421504ÿDrawWidth=2
InsertSavedLineÿ0.5ÿ8ÿ0.5ÿ0.5ÿ8421504ÿDrawWidth=2
InsertSavedLineÿ0.5ÿ0.75ÿ10.5ÿ0.75ÿ8421504ÿ0
InsertSavedLineÿ1.75ÿ0.5ÿ1.75ÿ0.75ÿ8421504ÿ0
InsertSavedLineÿ3ÿ0.5ÿ3ÿ0.75ÿ8421504ÿ0
InsertSavedLineÿ4.25ÿ0.5ÿ4.25ÿ0.75ÿ8421504ÿ0
InsertSavedLineÿ5.5ÿ0.5ÿ5.5ÿ0.75ÿ8421504ÿ0
InsertSavedLineÿ6.75ÿ0.5ÿ6.75ÿ0.75ÿ8421504ÿ0
InsertSavedLineÿ8ÿ0.5ÿ8ÿ0.75ÿ8421504ÿ0
InsertSavedLineÿ9.25ÿ0.5ÿ9.25ÿ0.75ÿ8421504ÿ0
InsertSavedSquareÿ0.5ÿ7.25ÿ3.25ÿ8ÿ8421504ÿ0
InsertSavedLineÿ1.25ÿ7.25ÿ1.25ÿ8ÿ8421504ÿ0
InsertSavedLineÿ2.5ÿ7.25ÿ2.5ÿ8ÿ8421504ÿ0
InsertSavedLineÿ0.5ÿ7.4375ÿ3.25ÿ7.4375ÿ8421504ÿ0
InsertSavedLineÿ0.5ÿ7.625ÿ3.25ÿ7.625ÿ8421504ÿ0
InsertSavedLineÿ0.5ÿ7.8125ÿ3.25ÿ7.8125ÿ8421504ÿ0
InsertSavedSquareÿ3.25ÿ7.25ÿ5.25ÿ7.625ÿ8421504ÿ0
InsertSavedSquareÿ3.25ÿ7.625ÿ5.25ÿ8ÿ8421504ÿ0
InsertSavedSquareÿ5.25ÿ7.25ÿ8.25ÿ8ÿ8421504ÿ0
InsertSavedSquareÿ8.25ÿ7.25ÿ9.625ÿ7.625ÿ8421504ÿ0
InsertSavedSquareÿ9.625ÿ7.25ÿ10.5ÿ7.625ÿ8421504ÿ0
InsertSavedSquareÿ8.25ÿ7.625ÿ9.625ÿ8ÿ8421504ÿ0
InsertSavedSquareÿ9.625ÿ7.625ÿ10.5ÿ8ÿ8421504ÿ0

1ÿ1.098ÿ0.571ÿ6316128ÿArialÿ7ÿFalseÿFalse
2ÿ2.348ÿ0.571ÿ6316128ÿArialÿ7ÿFalseÿFalse
3ÿ3.598ÿ0.571ÿ6316128ÿArialÿ7ÿFalseÿFalse
4ÿ4.848ÿ0.571ÿ6316128ÿArialÿ7ÿFalseÿFalse
5ÿ6.098ÿ0.571ÿ6316128ÿArialÿ7ÿFalseÿFalse
6ÿ7.348ÿ0.571ÿ6316128ÿArialÿ7ÿFalseÿFalse
7ÿ8.598ÿ0.571ÿ6316128ÿArialÿ7ÿFalseÿFalse
8ÿ9.848ÿ0.571ÿ6316128ÿArialÿ7ÿFalseÿFalse
NAMEÿ1.31ÿ7.297ÿ6316128ÿArialÿ6ÿFalseÿFalse
DATEÿ2.56ÿ7.297ÿ6316128ÿArialÿ6ÿFalseÿFalse
DRAWNÿ0.56ÿ7.485ÿ6316128ÿArialÿ6ÿFalseÿFalse
CHECKEDÿ0.56ÿ7.672ÿ6316128ÿArialÿ6ÿFalseÿFalse
APPROVEDÿ0.56ÿ7.86ÿ6316128ÿArialÿ6ÿFalseÿFalse
COMPANYÿ3.31ÿ7.283ÿ6316128ÿArialÿ6ÿFalseÿFalse
PROJECTÿ3.31ÿ7.658ÿ6316128ÿArialÿ6ÿFalseÿFalse
TITLEÿ5.31ÿ7.283ÿ6316128ÿArialÿ6ÿFalseÿFalse
DRAWING TITLEÿ5.31ÿ7.561ÿ0ÿArialÿ14ÿTrueÿFalse
DRAWING NUMBERÿ8.31ÿ7.283ÿ6316128ÿArialÿ6ÿFalseÿFalse
0001ÿ8.31ÿ7.413ÿ0ÿArialÿ9ÿFalseÿFalse
SHEETÿ9.685ÿ7.283ÿ6316128ÿArialÿ6ÿFalseÿFalse
1 OF 1ÿ9.685ÿ7.413ÿ0ÿArialÿ9ÿFalseÿFalse
DATEÿ8.31ÿ7.658ÿ6316128ÿArialÿ6ÿFalseÿFalse
REVÿ9.685ÿ7.658ÿ6316128ÿArialÿ6ÿFalseÿFalse
0ÿ9.685ÿ7.788ÿ0ÿArialÿ9ÿFalseÿFalse
///Picture Files///

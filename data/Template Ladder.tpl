///File Description///
The two rails of a control circuit with a fuse and fourteen numbered lines.
///End File Description///
8.5x11Portrait

InsertSavedLineÿ0.5ÿ0.5ÿ8ÿ0.5ÿ8421504ÿDrawWidth=2
InsertSavedLineÿ8ÿ0.5ÿ8ÿ10.5ÿ8421504ÿDrawWidth=2
InsertSavedLineÿ8ÿ10.5ÿ0.5ÿ10.5ÿ8421504ÿDrawWidth=2
InsertSavedLineÿ0.5ÿ10.5ÿ0.5ÿ0.5ÿ8421504ÿDrawWidth=2
InsertCircleÿ1.2125ÿ1.2125ÿ0.0375ÿ0ÿÿ1
InsertCircleÿ6.4625ÿ1.2125ÿ0.0375ÿ0ÿÿ1
InsertSavedLineÿ1.25ÿ1.25ÿ1.25ÿ1.375ÿ0ÿ0
InsertFuse90ÿ1.25ÿ1.375ÿ0ÿÿ1ÿ1ÿ0ÿFalse
InsertSavedLineÿ1.25ÿ1.875ÿ1.25ÿ9.25ÿ0ÿ0
InsertSavedLineÿ6.5ÿ1.25ÿ6.5ÿ9.25ÿ0ÿ0
InsertSavedLineÿ1.125ÿ2.25ÿ1.25ÿ2.25ÿ8421504ÿ0
InsertSavedLineÿ1.125ÿ2.75ÿ1.25ÿ2.75ÿ8421504ÿ0
InsertSavedLineÿ1.125ÿ3.25ÿ1.25ÿ3.25ÿ8421504ÿ0
InsertSavedLineÿ1.125ÿ3.75ÿ1.25ÿ3.75ÿ8421504ÿ0
InsertSavedLineÿ1.125ÿ4.25ÿ1.25ÿ4.25ÿ8421504ÿ0
InsertSavedLineÿ1.125ÿ4.75ÿ1.25ÿ4.75ÿ8421504ÿ0
InsertSavedLineÿ1.125ÿ5.25ÿ1.25ÿ5.25ÿ8421504ÿ0
InsertSavedLineÿ1.125ÿ5.75ÿ1.25ÿ5.75ÿ8421504ÿ0
InsertSavedLineÿ1.125ÿ6.25ÿ1.25ÿ6.25ÿ8421504ÿ0
InsertSavedLineÿ1.125ÿ6.75ÿ1.25ÿ6.75ÿ8421504ÿ0
InsertSavedLineÿ1.125ÿ7.25ÿ1.25ÿ7.25ÿ8421504ÿ0
InsertSavedLineÿ1.125ÿ7.75ÿ1.25ÿ7.75ÿ8421504ÿ0
InsertSavedLineÿ1.125ÿ8.25ÿ1.25ÿ8.25ÿ8421504ÿ0
InsertSavedLineÿ1.125ÿ8.75ÿ1.25ÿ8.75ÿ8421504ÿ0
InsertSavedSquareÿ0.5ÿ9.75ÿ5.5ÿ10.5ÿ8421504ÿ0
InsertSavedSquareÿ5.5ÿ9.75ÿ7ÿ10.125ÿ8421504ÿ0
InsertSavedSquareÿ7ÿ9.75ÿ8ÿ10.125ÿ8421504ÿ0
InsertSavedSquareÿ5.5ÿ10.125ÿ7ÿ10.5ÿ8421504ÿ0
InsertSavedSquareÿ7ÿ10.125ÿ8ÿ10.5ÿ8421504ÿ0

CONTROL CIRCUITÿ2.5ÿ0.672ÿ0ÿArialÿ10ÿTrueÿFalse
120 VAC, 60 HZÿ2.5ÿ0.875ÿ0ÿArialÿ8ÿFalseÿFalse
L1ÿ1.188ÿ1.013ÿ0ÿArialÿ8ÿFalseÿFalse
Nÿ6.46ÿ1.013ÿ0ÿArialÿ8ÿFalseÿFalse
FU1ÿ1.395ÿ1.563ÿ0ÿArialÿ8ÿFalseÿFalse
1ÿ1.31ÿ1.946ÿ10485760ÿArialÿ7ÿFalseÿFalse
Nÿ6.56ÿ1.946ÿ10485760ÿArialÿ7ÿFalseÿFalse
LINEÿ0.782ÿ1.828ÿ6316128ÿArialÿ6ÿFalseÿFalse
FUNCTIONÿ6.75ÿ1.828ÿ6316128ÿArialÿ6ÿFalseÿFalse
1ÿ0.844ÿ2.188ÿ0ÿArialÿ8ÿFalseÿFalse
2ÿ0.844ÿ2.688ÿ0ÿArialÿ8ÿFalseÿFalse
3ÿ0.844ÿ3.188ÿ0ÿArialÿ8ÿFalseÿFalse
4ÿ0.844ÿ3.688ÿ0ÿArialÿ8ÿFalseÿFalse
5ÿ0.844ÿ4.188ÿ0ÿArialÿ8ÿFalseÿFalse
6ÿ0.844ÿ4.688ÿ0ÿArialÿ8ÿFalseÿFalse
7ÿ0.844ÿ5.188ÿ0ÿArialÿ8ÿFalseÿFalse
8ÿ0.844ÿ5.688ÿ0ÿArialÿ8ÿFalseÿFalse
9ÿ0.844ÿ6.188ÿ0ÿArialÿ8ÿFalseÿFalse
10ÿ0.813ÿ6.688ÿ0ÿArialÿ8ÿFalseÿFalse
11ÿ0.813ÿ7.188ÿ0ÿArialÿ8ÿFalseÿFalse
12ÿ0.813ÿ7.688ÿ0ÿArialÿ8ÿFalseÿFalse
13ÿ0.813ÿ8.188ÿ0ÿArialÿ8ÿFalseÿFalse
14ÿ0.813ÿ8.688ÿ0ÿArialÿ8ÿFalseÿFalse
TITLEÿ0.56ÿ9.783ÿ6316128ÿArialÿ6ÿFalseÿFalse
DRAWING TITLEÿ0.56ÿ10.061ÿ0ÿArialÿ14ÿTrueÿFalse
DRAWING NUMBERÿ5.56ÿ9.783ÿ6316128ÿArialÿ6ÿFalseÿFalse
0001ÿ5.56ÿ9.913ÿ0ÿArialÿ9ÿFalseÿFalse
SHEETÿ7.06ÿ9.783ÿ6316128ÿArialÿ6ÿFalseÿFalse
1 OF 1ÿ7.06ÿ9.913ÿ0ÿArialÿ9ÿFalseÿFalse
DRAWNÿ5.56ÿ10.158ÿ6316128ÿArialÿ6ÿFalseÿFalse
DATEÿ7.06ÿ10.158ÿ6316128ÿArialÿ6ÿFalseÿFalse
///Picture Files///

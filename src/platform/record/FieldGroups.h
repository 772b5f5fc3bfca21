#pragma once

// A record's fields by how they are stored: FIELD rows put through SARGAN_NUMBER_FIELD(type, declaration)
// leave the whole numbers and floats, put through SARGAN_OBJECT_FIELD all others.

#define SARGAN_NUMBER_FIELD(type, declaration) SARGAN_NUMBER_##type(declaration)
#define SARGAN_NUMBER_Int(declaration) declaration
#define SARGAN_NUMBER_Float(declaration) declaration
#define SARGAN_NUMBER_Text(declaration)
#define SARGAN_NUMBER_Date(declaration)
#define SARGAN_NUMBER_Numbers(declaration)
#define SARGAN_NUMBER_Picture(declaration)

#define SARGAN_OBJECT_FIELD(type, declaration) SARGAN_OBJECT_##type(declaration)
#define SARGAN_OBJECT_Int(declaration)
#define SARGAN_OBJECT_Float(declaration)
#define SARGAN_OBJECT_Text(declaration) declaration
#define SARGAN_OBJECT_Date(declaration) declaration
#define SARGAN_OBJECT_Numbers(declaration) declaration
#define SARGAN_OBJECT_Picture(declaration) declaration

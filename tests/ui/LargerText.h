#pragma once

/// Makes all texts larger while it exists, as a user does who sets the desktop's text scaling.
/// Windows made meanwhile have the larger texts.
class LargerText
{
public:
    /// @param factor  1.5 makes every text half as large again
    explicit LargerText(double factor);
    ~LargerText();

    LargerText(const LargerText&) = delete;
    LargerText& operator=(const LargerText&) = delete;

private:
    int usual = 0;
};

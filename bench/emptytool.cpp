// What loading qaz-theme's libraries costs: the measure for bench/command.
int main()
{
    return 0;
}

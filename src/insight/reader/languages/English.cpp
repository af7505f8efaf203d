#include "insight/reader/Language.h"

namespace orlen::AskReader {

namespace english_words {

constexpr WordRow kWords[] = {
    {Sense::rhythm,
     "how often should i,how often should one,how often should we,how often do i have to,how often "
     "do i need to,how often must i,how often do you recommend,how often is it good to,how "
     "often to,how regularly,how frequently,how often is it worth"},
    {Sense::rights,
     "need my password,want my password,ask for my password,asks for my "
     "password,root,sudo,admin,administrator,admin rights,administrator rights,root rights,superuser,as "
     "root,root access,sudo rights,root privileges,admin privileges,admin password,root password"},
    {Sense::vacant, "empty folders,empty folder,empty directories,empty directory,empty dirs,empty "
                    "subfolders,folders that are empty,folders with nothing in them,folders are empty"},
    {Sense::freed,
     "did it delete,has it deleted,did it remove,has it removed,did this program delete,have you ever "
     "deleted,have you ever moved,have you ever removed,did you ever delete,has orlen ever "
     "deleted,was anything deleted,was anything removed,was anything moved,was something deleted,anything "
     "deleted,anything been deleted,did orlen delete,did you delete,have you deleted,has orlen deleted,did "
     "orlen move,did you move,have "
     "you moved,has orlen moved,did orlen remove,did you remove,have you removed,did you trash,have you "
     "trashed,did you clean,have you cleaned,did orlen clean,has orlen cleaned,have i won back,have i "
     "won,did i win back,have i regained,have i reclaimed,have i recovered,did i reclaim,have you "
     "reclaimed,was freed,was deleted,was removed,was moved,were deleted,were removed,were moved,did orlen "
     "free,has orlen freed,did you free,have you freed,did i free,have i freed,did we free,have we "
     "freed,did it free,has it freed,has this program freed,did this program free,has this app freed,did "
     "this app free,has this tool freed,have i got back,did i get back,i freed,you freed,orlen freed"},
    {Sense::inPeace, "alone,in peace"},
    {Sense::ownRemoval,
     "uninstall orlen,uninstall yourself,uninstall this app,uninstall this program,uninstall this tool,"
     "uninstall this software,remove orlen,remove yourself,remove this app,remove this program,"
     "remove this tool,remove this software,delete orlen,delete yourself,delete this app,"
     "delete this program,delete this tool,delete this software,get rid of orlen,get rid of yourself,"
     "get rid of this app,get rid of this program,get rid of this tool,get rid of this software,"
     "deinstall orlen,deinstall yourself,deinstall this app,deinstall this program,deinstall this tool,"
     "deinstall this software,uninstalling orlen,uninstalling yourself,uninstalling this app,"
     "uninstalling this program,uninstalling this tool,uninstalling this software,removing orlen,"
     "removing yourself,removing this app,removing this program,removing this tool,"
     "removing this software,deleting orlen,deleting yourself,deleting this app,deleting this program,"
     "deleting this tool,deleting this software,install and remove orlen,install and remove yourself,"
     "install and remove this app,install and remove this program,install and remove this tool,"
     "install and remove this software,uninstall you,orlen be uninstalled,orlen be removed,"
     "uninstall orlen itself,remove orlen itself"},
    {Sense::resident,
     "orlen doing in the background,you doing in the background,orlen do in the background,you do in the "
     "background,does orlen run in the background,does orlen work in the background,"
     "does orlen stay in the background,does orlen run all the time,does orlen keep running,"
     "does orlen always run,does orlen run permanently,does orlen run when closed,"
     "does orlen run by itself,does orlen run on its own,does orlen start automatically,"
     "does orlen start at login,does orlen start at boot,does orlen start by itself,"
     "does orlen start with the computer,does orlen run at startup,does orlen run at login,"
     "does orlen run as a service,does orlen run a service,does orlen run a daemon,"
     "do you run in the background,do you work in the background,do you stay in the background,"
     "do you run all the time,do you keep running,do you always run,do you run permanently,"
     "do you run when closed,do you run by itself,do you run on its own,do you start automatically,"
     "do you start at login,do you start at boot,do you start by itself,do you start with the computer,"
     "do you run at startup,do you run at login,do you run as a service,do you run a service,"
     "do you run a daemon,will orlen run in the background,will orlen work in the background,"
     "will orlen stay in the background,will orlen run all the time,will orlen keep running,"
     "will orlen always run,will orlen run permanently,will orlen run when closed,"
     "will orlen run by itself,will orlen run on its own,will orlen start automatically,"
     "will orlen start at login,will orlen start at boot,will orlen start by itself,"
     "will orlen start with the computer,will orlen run at startup,will orlen run at login,"
     "will orlen run as a service,will orlen run a service,will orlen run a daemon,"
     "is orlen running in the background,is orlen always running,is orlen running all the time,"
     "is orlen active in the background,is orlen a background process,is orlen a background service,"
     "is orlen a daemon,is orlen running now,are you running in the background,are you always running,"
     "are you running all the time,are you active in the background,are you a background process,"
     "are you a background service,are you a daemon,are you running now,this app run in the background,"
     "this app running in the background,this app always running,this program run in the background,"
     "this program running in the background,this program always running,"
     "this tool run in the background,this tool running in the background,this tool always running"},
    {Sense::deletes,
     "will you ever delete,will you delete,will you ever remove,will you remove,will you ever erase,"
     "will you erase,will orlen ever delete,will orlen delete,will orlen ever remove,will orlen remove,"
     "will orlen ever erase,will orlen erase,will it ever delete,will it delete,will it ever remove,"
     "will it remove,will it ever erase,will it erase,will this program ever delete,"
     "will this program delete,will this program ever remove,will this program remove,"
     "will this program ever erase,will this program erase,will this app ever delete,"
     "will this app delete,will this app ever remove,will this app remove,will this app ever erase,"
     "will this app erase,will the program ever delete,will the program delete,"
     "will the program ever remove,will the program remove,will the program ever erase,"
     "will the program erase,will the app ever delete,will the app delete,will the app ever remove,"
     "will the app remove,will the app ever erase,will the app erase,would you ever delete,"
     "would you delete,would you ever remove,would you remove,would you ever erase,would you erase,"
     "would orlen ever delete,would orlen delete,would orlen ever remove,would orlen remove,"
     "would orlen ever erase,would orlen erase,would it ever delete,would it delete,"
     "would it ever remove,would it remove,would it ever erase,would it erase,"
     "would this program ever delete,would this program delete,would this program ever remove,"
     "would this program remove,would this program ever erase,would this program erase,"
     "would this app ever delete,would this app delete,would this app ever remove,would this app remove,"
     "would this app ever erase,would this app erase,would the program ever delete,"
     "would the program delete,would the program ever remove,would the program remove,"
     "would the program ever erase,would the program erase,would the app ever delete,"
     "would the app delete,would the app ever remove,would the app remove,would the app ever erase,"
     "would the app erase,does orlen ever delete,does orlen delete,does orlen ever remove,"
     "does orlen remove,does orlen ever erase,does orlen erase,does it ever delete,does it delete,"
     "does it ever remove,does it remove,does it ever erase,does it erase,does this program ever delete,"
     "does this program delete,does this program ever remove,does this program remove,"
     "does this program ever erase,does this program erase,does this app ever delete,"
     "does this app delete,does this app ever remove,does this app remove,does this app ever erase,"
     "does this app erase,does the program ever delete,does the program delete,"
     "does the program ever remove,does the program remove,does the program ever erase,"
     "does the program erase,does the app ever delete,does the app delete,does the app ever remove,"
     "does the app remove,does the app ever erase,does the app erase,do you ever delete,do you delete,"
     "do you ever remove,do you remove,do you ever erase,do you erase,could you ever delete,"
     "could you ever remove,could you ever erase,could orlen ever delete,could orlen ever remove,"
     "could orlen ever erase,could it ever delete,could it ever remove,could it ever erase,"
     "could this program ever delete,could this program ever remove,could this program ever erase,"
     "could this app ever delete,could this app ever remove,could this app ever erase,"
     "could the program ever delete,could the program ever remove,could the program ever erase,"
     "could the app ever delete,could the app ever remove,could the app ever erase,"
     "are you going to delete,is orlen going to delete,is it going to delete,are you gonna delete"},
    {Sense::reads,
     "does it scan my,does it read my,does it look at my,does it look into my,does it look in my,"
     "does it open my,does it access my,does it go through my,do you scan my,do you read my,"
     "do you look at my,do you look into my,do you look in my,do you open my,do you access my,"
     "do you go through my,does orlen scan my,does orlen read my,does orlen look at my,"
     "does orlen look into my,does orlen look in my,does orlen open my,does orlen access my,"
     "does orlen go through my,will it scan my,will it read my,will it look at my,will it look into my,"
     "will it look in my,will it open my,will it access my,will it go through my,will you scan my,"
     "will you read my,will you look at my,will you look into my,will you look in my,will you open my,"
     "will you access my,will you go through my,does this program scan my,does this program read my,"
     "does this program look at my,does this program look into my,does this program look in my,"
     "does this program open my,does this program access my,does this program go through my,"
     "does this app scan my,does this app read my,does this app look at my,does this app look into my,"
     "does this app look in my,does this app open my,does this app access my,"
     "does this app go through my,does the program scan my,does the program read my,"
     "does the program look at my,does the program look into my,does the program look in my,"
     "does the program open my,does the program access my,does the program go through my,can it read my,"
     "can it see my,can it access my,can it open my,can orlen read my,can orlen see my,"
     "can orlen access my,can orlen open my,can this program read my,can this program see my,"
     "can this program access my,can this program open my,can this app read my,can this app see my,"
     "can this app access my,can this app open my,does it see my,does orlen see my,is it reading my,"
     "is orlen reading my,is it scanning my,is orlen scanning my,are you reading my,"
     "does it scan private,does it read private,do you scan private,do you read private,"
     "does orlen scan private,does orlen read private,will it scan private,will it read private,"
     "will you scan private,will you read private,does this program scan private,"
     "does this program read private,does this app scan private,does this app read private,"
     "does the program scan private,does the program read private,can it read private,"
     "can orlen read private,can this program read private,can this app read private,does it read,"
     "does orlen read,do you read,can you read,can orlen read,does it scan,does orlen scan,do you scan"},
    {Sense::lastUse,
     "last time i used,the last time i used,last time i ran,the last time i ran,last time i opened,"
     "the last time i opened,last time i started,the last time i started,last time i launched,"
     "the last time i launched,last time i played,the last time i played,last time i worked with,"
     "the last time i worked with,when did i last use,did i last use,i last use,when did i last run,"
     "did i last run,i last run,when did i last open,did i last open,i last open,when did i last start,"
     "did i last start,i last start,when did i last launch,did i last launch,i last launch,"
     "when did i last play,did i last play,i last play,i last used,i last opened,i last ran,"
     "last time i was using"},
    {Sense::included,
     "include,including,includes,if i include,when i include,if we include,if you include,if i add,"
     "if i also include"},
    // Orlen itself, where it is asked what it does.
    {Sense::filler,
     "a message,a message that,a message saying,a message that says,a warning,a warning that,a warning "
     "saying,a warning that says,a popup,a popup that,a popup saying,a pop-up,a notification,a notification "
     "that,an alert,an alert that,an error,an error that,an error saying,error message,error message "
     "saying,keep getting,keeps telling me,ubuntu keeps telling me,linux keeps telling me,"
     "system keeps telling me,the system keeps telling me,it keeps telling me,keeps saying,it keeps "
     "saying,keeps warning me,tells me,tells me that,is telling "
     "me,is telling me that,warns me,warns me that,system says,the system says,the system tells me,ubuntu "
     "says,linux says,computer says,my computer says,my computer says that,laptop says,my laptop says,my pc "
     "says,it says,says that,saying that"},
    {Sense::filler,
     "getting,hardly,barely,scarcely,somehow,anyhow,to run,to work,completely,totally,fully,another,with "
     "this "
     "program,with this app,with "
     "this tool,with this thing,with this software,in this "
     "program,in "
     "this "
     "app,in this tool,by this program,by this app,using this program,using this app,this program,this "
     "app,this "
     "tool,this thing,this software,at this rate,at this pace,at the current rate,at the current pace,at the "
     "present rate,at the present pace,if this goes on,if it goes on like this,if i go on like this,in the "
     "storage breakdown,in the breakdown,in your breakdown,in the overview,in the chart,in the graph,in the "
     "storage view,in the storage overview,on this computer,on this machine,on this pc,on this laptop,on the "
     "computer,in one sweep,after that,afterwards,biggest first,largest first,the biggest first,the largest "
     "first,biggest on top,largest on top"},
    {Sense::ruleOut, "exclude a folder,exclude a file,exclude folders,exclude my,exclude something,how do i "
                     "exclude,how to exclude,how can i exclude,whitelist,add an exclusion,add "
                     "exclusion,exclusions,exclusion list,exception list,add an exception,never scan,do not "
                     "scan,dont scan,stop scanning,never suggest,stop suggesting,never touch my,ignore a "
                     "folder forever,ignore list,leave out of the scan,keep out of the scan,skip a folder"},
    {Sense::self,
     "questions can i ask,questions can i ask you,which "
     "questions can i ask,what sort of questions can i ask,what else can i ask,what can you do,what can you "
     "tell me,what do you know,what can i ask,what can i ask you,what questions "
     "can i ask,who are you,what are you,help,help me,how does this work,how do you work,what is orlen,what "
     "does orlen do,hello,hi,hey,good morning,good evening,thanks,thank you,thx,what is this program,what "
     "does this program do,how do i use this,how do i use orlen,what can orlen do,what can orlen do for "
     "me,what can you do for me,how can you help,how can you help me,what are you able to do,what is this "
     "app,what does this app do"},
    {Sense::installed, "installed,is installed,have installed,got installed"},
    {Sense::advise, "recommend,recommended,suggest,suggested,suggestion,suggestions,recommendation,"
                    "recommendations,advise,advice,start with,begin with,get started,should start,do "
                    "first,best way,easiest way,what now,start cleaning,start cleaning up,start "
                    "tidying,start deleting,begin cleaning,low-hanging fruit,quick wins,worth deleting,worth "
                    "removing,what to do,what do i do,what do i do now,what should i do,what can i do,what "
                    "can i do about it,what to do now,what shall i do,do about it,tips,get it smaller"},
    {Sense::trust,
     "trust,trustworthy,is orlen safe,reliable,is this safe to use,is orlen legit,at risk,in danger,in good "
     "hands,safe with you,safe with orlen,safe here,can i rely,rely on,open source"},
    {Sense::beyond,
     "virus,viruses,malware,spyware,trojan,faster,speed up,speeding "
     "up,slow,slower,performance,overclock,defragment,defrag,ram,cpu,processor,temperature,battery,password "
     "manager,firewall,antivirus,update my system,drivers,driver,registry,screen resolution,internet "
     "speed,graphics card,gpu,overheating,format,reformat,repartition,hack,hacked,virus "
     "scan,clone,benchmark,wifi password,volume up,bluetooth,printer,webcam,mouse pointer,temperature "
     "of,update linux,upgrade linux,install updates,bad sectors,disk health,smart "
     "status,encrypt,decrypt"},
    {Sense::happens,
     "where do the deleted things go,where do deleted things go,where do the deleted files go,where do the "
     "deleted items go,does it stay in the trash,emptied automatically,where do deleted things go,where do "
     "deleted items "
     "go,where do my deleted files go,where do my files "
     "go,where do the files go,where does it all go,only trash,only trash them,just trash,what happens,what "
     "will happen,what would happen,happen,happens,where do they go,where does it go,where "
     "do deleted files go,permanently,shred,shredding,shreds,securely delete,securely erase,secure "
     "delete,secure erase,forever,for good,gone for good,for "
     "ever,irreversible,irrevocably,break,breaks,harm,hurt,damage,crash,break anything,break "
     "something,breaking,destroy,consequences,by itself,by yourself,on its own,on your own,without "
     "asking,automatically,without my permission,regret,lost,be lost,losing,gone,really gone,gone "
     "forever,lost forever,still there,come back to life,what if i"},
    {Sense::only, "only,just the,just those,just,limit to,limited to,restrict to,nothing but"},
    {Sense::also,
     "and,also,plus,what about,how about,and what about,and how about,what of,as well as,&,and also,or"},
    {Sense::backward,
     "it,them,they,that one,this one,those,these,ones,one,the one,it's,its,that's,they're,this,that,the "
     "ones,of them,of those,theirs,these ones,those ones,him"},
    {Sense::filler,
     "the deal with,deal with,whats up with,the story with,put,fine to know,went,at the "
     "moment,a,an,the,my,mine,our,your,i,me,we,you,is,are,was,were,be,been,am,do,does,did,have,has,had,will,"
     "would,"
     "of,on,to,for,at,by,please,pls,plz,there,so,now,right "
     "now,currently,today,tell,show,list,give,find,see,look,looking,get,know,want,wondering,really,actually,"
     "about,some,all,much,many,here,then,too,ever,still,already,exactly,approximately,roughly,named,called,"
     "orlen,with,if,their,than,i've,i'm,i'd,kind,kinds,type,types,sort,like,let,let's,display,name,as,well,"
     "ok,okay,us,how,go,goes,going,lying around,sitting,stored,there's,quick,quickly,again,myself,can you "
     "tell me,can you show me,could you tell me,could you show me,do you know,i would like to know,i want to "
     "know,i wonder,curious,just curious,hmm,um,uh,oh,dear,kindly,gonna,wanna,want to,would like,i'd like "
     "to,like to,feel,think,guess,suppose,maybe,perhaps,basically,anyway,btw,lol,lot,lots,bunch,a lot "
     "of,tons,tons of,own,on here,in here,around,anywhere,somewhere,on it,which "
     "of,out,up,down,off,each,every,per,being,made,come,comes,bit,little,kinda,sorta,ya,u,ur,need to,have "
     "to,got,gotten,having,you've,you're,he,she,his,her,try,trying,both,whole,entire,entirely,specific,"
     "particular,certain,different,various,single,full list,list "
     "of,details,detail,information,info,question,answer,that are,that i,that is,which are,that have,that "
     "were,which were,that was,which is,which i,i can,we have,on my,in my own,happen to,supposed,currently "
     "have,belongs,belonging,contain,contains,containing,hold,holds,keep track,laying around,ago,via,using "
     "orlen,with orlen,in "
     "orlen,say,says,said,almost,nearly,near,enough,somebody,someone,anyone,anybody,people,everyone,friend,"
     "son,daughter,told,thought,hope,hear,heard,seems,seem,always,sometimes,usually,often,later,even,such,"
     "through,while,because,into,onto,along,simple,nice,great,cool,wow,wondered,ask,asking,check,checking,"
     "c,c:,together,whether,grandma,grandpa,granddaughter,grandson,fix,solve,exist,exists,noticed,understand,"
     "explain me,remind,therefore,though,although,instead,yet,per "
     "se,anything like,whatever,where exactly,on disk,really do,meanwhile,taken by,i have,i "
     "got,pretty,quite,very,such as,honestly,literally,super,actually do,us both,pls help,finally,once,each "
     "one,everywhere,anywhere at all,located "
     "on,im,ive,id,during,behind,against,among,across,towards,worried,worry,whose,upon,else's,whats up,pls "
     "can you,wonder,recently,thanks to,could i,sir,exact,minute,moment,hold on,lately,gig "
     "wise,whichever,these days,real,stuff like,sized,weird,strange,suddenly,oh no,ugh,damn,anywhere "
     "else,dunno,idk,im not sure,not sure,unsure,curious about,regarding,concerning,related,related to,size "
     "wise,by any chance,for me,to me,kids,grandchildren,way,ways,christmas eve,itself,done,doing,needs "
     "to,as well as that,person,ordinary,first of all,away,date,all of a sudden,percent,per "
     "cent,percentage,%,asap,as soon as possible,urgently,in one go,in percent,faster way,portion of,part "
     "of,share of,proportion of,fraction of,percentage of,out of it,out of that,out of this,for an "
     "update,for the update,for an upgrade,for the upgrade,for updates,you found,that you found,found,did "
     "you find,combined,in one,by any means,whatsoever,mean to,meant to,or so,or something,quickest "
     "way,fastest way,fast way,good way,obviously,definitely,currently available,generally,kind "
     "sir,buddy,mate,dude,bro,man,friendo,computer wise,here and there,i wonder if,wondering if,if "
     "possible,going forward,marvelous,thank you very much,in advance,real quick,real fast,a "
     "sec,hiya,heya,yo,overnight,last night,each file,as of late"},
    {Sense::negation, "not,don't,dont,doesn't,doesnt,didn't,isn't,aren't,can't,cant,cannot,shouldn't,mustn't,"
                      "never,won't,haven't,havent,hasn't,wasn't,weren't,no "
                      "longer,couldn't,wouldn't,ain't,wont,shouldnt,didnt,isnt,arent,wouldnt,couldnt,hasnt,"
                      "wasnt,aint,neither,nor,none,noone,no one"},
    {Sense::except,
     "that arent,which arent,that isnt,which isnt,arent,not a,not an,not being,that is no,thats no,that's "
     "no,except,except for,besides,beside,other than,apart "
     "from,aside from,excluding,exclude,but not,not "
     "counting,leaving out,leave out,ignoring,ignore,and not,minus,without,anything but,everything but,all "
     "but,exempt,save for,not including,left out,with the exception of,outside of,barring,excepting,not "
     "in,that aren't,that are not,which aren't,which are not,that isn't,not from,but leave,leaving out "
     "my,without touching,without deleting,without removing,without losing,without moving,not touching,but "
     "not touch,but don't touch,but dont touch,but no,and no,with no,but keep,but keep my,leave my,leave "
     "the,but ignore,but skip,just not,only not,instead of,not any"},
    {Sense::lasts,
     "last long,lasts,lasting,suffice,suffices,survive,survives,hold out,keep going,going to last,be "
     "enough,still fit,run dry,make it to,make it until,make it till,get me to,get through to,make it "
     "through,be okay until,be ok until,be fine until,good until,sufficient,be sufficient,holds out,carry "
     "on,will i have,will there be,will there still be,will i still have,going to be,gonna be,going to "
     "have,does it last,will it last,it last,enough to last,will we have"},
    {Sense::speed, "how fast,how quickly,how rapidly,growth rate,pace,at what rate,what rate,speed,per "
                   "day,per week,per month,each day,each week,each month,a day,a "
                   "week,daily,weekly,monthly,every day,every week,every month"},
    {Sense::what, "what,what's,whats,what is,what are,which,where,where is,where "
                  "are,where's,explain,describe,tell me about,who,what kind of,what sort of,what type "
                  "of,what else,are there,is there,do i have,have i got,any,got any,do you see,did you "
                  "find,show me,list all,show all,wheres,wich,wat,how come there are,have you found"},
    {Sense::howBig,
     "total of,the total of,the sum of,sum of,total for,how big,how large,how heavy,how huge,size of,the "
     "size,how much space do,how much space does,how much "
     "room do,how much room does,how much storage do,how much storage does,how much do,how much does,how "
     "many gb,how many gigabytes,how many gigs,how many mb,size,how much is in,how many bytes,weigh,how much "
     "space is taken by,how much space is used by,how much space are,big is,file size,total size of,how much "
     "disk space do,how much disk space does,hw big,sizes,how much memory does,how much memory do,how much "
     "gb,how bigg,what share,what part,what portion,what proportion,what percentage,what fraction,amount of "
     "space,space does,footprint of,footprint,weight of,how much data,how much is"},
    {Sense::howMany, "how many,count,number of,how often,amount of,how many times,how mny,howmany"},
    {Sense::can, "can,could,may,should,shall,must,need,is it safe to,is it ok to,is it okay to,safe to,ok "
                 "to,okay to,allowed to,possible to,able to,is it fine to,fine to,is it alright to,alright "
                 "to,ought,is it possible to,is it worth,do i need"},
    {Sense::makeRoom,
     "could i free,can i free,could we free,could i get free,free up,make room,make space,make room for,make "
     "space for,clear "
     "up,reclaim,regain,gain,save,saved,freed,freeing,clear out,get back space,need to free,recover "
     "space,win,free some,make some room,make some space,more space,more room,get space,get more space,get "
     "more room,need space,need room,need more space,freeing up,need more room,create space,get rid of "
     "stuff,tidy up,tidy,tidying,declutter,get some space,need some space,save space,saving space,spare "
     "up,frees,freed "
     "up,space back,get some space back,get some room back,get back some space,get back some room,get some "
     "storage back,get some disk space back,get a bit of space back,get more space back,to free space,to "
     "free some space,to free disk space,to free some disk space,to free room,to free storage,find space,get "
     "space back,some space back,i need,want more space,get rid of "
     "things,smaller footprint,slim down,gain space,a way to get,want to free,want back,less "
     "full,emptier,lighten,way to get,need to find,must free,must make,want to make,have to free,have to "
     "make,room i could,gig back,gigs back,win back,claw back"},
    {Sense::make, "make,makes,get me,gimme,give me,find me,create"},
    {Sense::untouched,
     "will it touch,will you touch,does it touch,do you touch,would it touch,would you touch,refuse to "
     "delete,refuses to delete,refuse to touch,refuses to touch,refuse to move,refuses to "
     "move,will not delete,would never delete,would never touch,would you never delete,never touch,never "
     "touched,not touch,won't touch,will not touch,don't touch,never move,never "
     "delete,never deletes,never moves,not move,off limits,off-limits,leave alone,left "
     "alone,protected,protect,never remove,never removes,does not touch,doesn't touch,won't move,won't "
     "delete,untouched,protects,never be deleted,never be touched,never get deleted,doesn't move,doesn't "
     "delete,leaves alone,never ever delete,stay away from,hands off,allowed to touch,may touch,can "
     "touch,permitted to touch"},
    {Sense::cleanUp,
     "went to the trash,gone to the trash,sent to the trash,moved to the trash,put in the trash,what was "
     "trashed,clean-up,cleanup,cleaning,clean up,cleaned up,cleaned,clean,cleans,tidied,did orlen "
     "clean,did orlen remove,did orlen move,have you cleaned,did you clean"},
    {Sense::uninstall,
     "remove an app,delete an app,remove an application,delete an application,remove a program,delete a "
     "program,uninstall,deinstall,uninstalling,uninstalled,remove the app,delete the app,remove "
     "the program,delete the program"},
    {Sense::remove,
     "any use,any use to me,of any "
     "use,binning,trashing,ditching,nuking,chucking,dumping,tossing,delete,deleted,deleting,deletes,remove,"
     "removed,removing,removes,erase,erased,throw away,throw out,get "
     "rid,get rid of,getting rid of,discard,drop,move,moved,wipe,dump,clear,cleared,ditch,bin it,trash "
     "it,move to the trash,purge,kill,empty,emptied,part with,live without,do without,chuck,toss,toss "
     "out,nuke,deletable,removable,del,thrown away,threw away,scrap,deletd,expendable,let go of,trashed,do "
     "away with,rm,take off,bin,don't need,dont need,do not need,no longer need,not needed,never need,don't "
     "want,dont want,no longer want,can go,may go,unneeded files,not need,throw,throwing,thrown,threw,should "
     "go,could go,has to go,must go,would go,trash the,trash my,trash all,trash this,trash that,trash "
     "these,trash some,useless,unnecessary,unneeded,junk,garbage,clutter,crap,superfluous,pointless "
     "files,dead weight,waste of space,rubbish files,shed,eliminate,sacrifice,do "
     "i not need,i can lose,can lose,can i lose,zap"},
    {Sense::undo,
     "reversible,undoable,can be undone,undo,restore,revert,put back,bring back,get "
     "back,recover,undelete,take back,roll "
     "back,undone,restored,reverse,restoring,recovering,recovered,get it back,get them back,bring it "
     "back,bring them back,put it back,put them back,changed my mind,by mistake,by accident,accidentally,get "
     "my files back,undoing,rollback,want it back,want them back,come "
     "back,back,recoverable,retrievable,retrieve,regret,regretted,resurrect,reinstate,return,returned,put "
     "everything back,oops,unmove,undid,reversed,rescue,salvage,unclean,wrong file,wrong files,shouldn't "
     "have deleted,get it all back"},
    {Sense::safe,
     "safe,safely,harmless,ok,dangerous,risky,safest,problem,problems,risk,risks,bad "
     "idea,trouble,okay,without worrying,without thinking,without thinking about it,without thinking "
     "twice,without a second thought,without having to think,without looking,without "
     "checking,blindly,without worry,without risk,without problems,without a "
     "problem,without fear,without danger"},
    {Sense::review, "review"},
    {Sense::keep, "keep,kept,hang on to,hold on to,stay,stays,important,essential,necessary,worth "
                  "keeping,valuable,precious,hang onto"},
    {Sense::mean,
     "counted as,count as,counts as,counted under,included in,count towards,mean,means,meaning,stand "
     "for,stands for,difference between,the "
     "difference,ratings,rating,rated,meant,colours,colors,labels,rate,rates,difference,categorise,"
     "definition,rules,rule,criteria,decide,judge,classified,classify,label,marked,labelled,labeled,tagged,"
     "flagged,classed,what's a,definition of,describe the,categories mean,have to review,need to review,must "
     "review,must i review,should i review,do i review,the difference between"},
    {Sense::soFar,
     "did i ever clean,have i ever cleaned,did i ever clean up,have i ever cleaned up,did you ever "
     "clean,have you ever cleaned,so far,all time,all-time,ever freed,until now,up to now,to date,in "
     "all,over time,already "
     "freed,history,in the past,over the years,ever cleaned,since the beginning,since i started,all "
     "together,cleanups,clean-ups,cleanings,clean ups,past clean-ups,previous clean-ups,past cleanups,my "
     "clean-ups,my cleanups,ever done,all my cleanups,all my clean-ups,log of cleanups,before today"},
    {Sense::used,
     "occupied,taken,in use,used up,how full,consumed,filled up so far,space used,usage,disk usage,space "
     "usage,storage usage,filled,portion used,taken up,eaten,gobbled up,percent full,percentage full,% full"},
    {Sense::handled, "used,accessed"},
    {Sense::opened,
     "opened,touched,open,touch,looked at,watched,viewed,read,watch,viewing,listen,listened,seen,saw"},
    {Sense::full,
     "out of storage,nearly out of storage,nearly out of space,almost out of space,almost out of "
     "storage,running out of disk,low disk space,low space,disk space low,space low,space is low,low on "
     "storage,storage "
     "low,full,fill,fills,filled,filling,fill up,filling up,fills up,running out,run out,runs out,out of "
     "space,no space,no room,low on space,so little space,almost full,nearly full,out of room,out of disk "
     "space,no free space,no more space,no disk space,so full,run out of space,running out of space,no space "
     "left,no free space left,run out of room,running low on space,running low,run out of disk space,running "
     "out of disk space,running out of storage,run out of storage,getting full,running out of room,used so "
     "much,so much space gone,space gone,all my space,all the space,space go,space went,storage full,not "
     "enough space,lost space,losing space,no storage left,eaten up,where did my space,filling so fast,hit "
     "the limit,low on disk,all my space gone,all my space go,my space gone,space disappear,space "
     "vanish,space disappeared,space vanished,all my storage,storage gone,disk space gone,all my disk "
     "space,so little room,little room left,little space left,so little room left,so little space "
     "left,hardly any space,hardly any room,barely any space,barely any room,almost no space,almost no "
     "room,nearly no space,not much space,not much room,no gigs left,fills my,filling my,used it all "
     "up,crammed,packed,jam-packed,topped out,maxed out,at capacity,near capacity,overflow,overflowing,reach "
     "the limit,ran out,ran out of space,use up all,used up all,use all my space,full up"},
    {Sense::free, "free,available,remaining,left,spare,unused space,unoccupied,leftover,left over,empty "
                  "space,remains,vacant,unused disk space,usable,space remaining,remaining space,gigs "
                  "free,unallocated,headroom,breathing room,leeway"},
    {Sense::total, "total,capacity,altogether,in total,overall,total size,total capacity,total "
                   "space,status,overview,summary"},
    {Sense::disk, "disk,disks,drive,drives,hard drive,hard "
                  "disk,ssd,hdd,storage,computer,laptop,machine,pc,volume,partition,mac,disc,my "
                  "disk,harddrive,harddisk,notebook,nvme"},
    {Sense::space, "store,space,room,disk space,storage space,place,drive space,gb of space,memory,gigabytes "
                   "of space,fit,fits"},
    {Sense::howMuch,
     "what would i have,what would be free,what would be left,what would i have left,what does that give "
     "me,what does that give,what would that give me,what do i get back,what would i get "
     "back,what would that bring,how much,how mutch,how mcuh,howmuch,what do i gain,what would i gain,what "
     "do i get,what would i "
     "get,what do i save,what would i save,what would that free,what does that free,what does it bring"},
    {Sense::why, "why,how come,what's the reason,what made,reason,what makes,why's,for what reason,why "
                 "so,why is that,why that,reasons,whats the reason,hows come,what's causing,what "
                 "caused,whats causing,caused,cause,causes,causing,because of what,what is causing,explain "
                 "why,tell me why,what happened to"},
    {Sense::when, "when,how soon,how long,what date,which date,what day,which day,how many days,how many "
                  "weeks,how many months,by when,until when,what month,which month,when's,how long until,how "
                  "long till,how long before,when will,how many years,soon,how much longer,how much time"},
    {Sense::most,
     "most,the most,most space,most of,most room,most storage,most disk space,biggest "
     "chunk,fastest,quickest,most quickly,most rapidly,the fastest,the quickest,bulk of,lion's share,largest "
     "share,main culprit,main culprits,culprit,culprits,worst offender,worst offenders,offenders,offender"},
    {Sense::takes,
     "takes,taking,take,takes up,taking up,take up,hogging,hog,hogs,eating,eats,eat,eating "
     "up,using,uses,use,using up,uses up,use "
     "up,wasting,wastes,occupy,occupies,occupying,consume,consumes,consuming,waste,space hogs,space "
     "hog,need,needs,clogging,clogs,clog,clogging up,wasted,space eaters,heavy,gobbling up,gobbling"},
    {Sense::biggest,
     "sorted by space,biggest,largest,heaviest,top,bulkiest,greatest,largest "
     "sized,fattest,longest,large,big,huge,giant,enormous,massive,gigantic,bigest,sorted by size,by "
     "size,hugest,chunkiest,chunky,beefiest,beefy,bulky,heavy,monster,hefty,giants,massive "
     "ones,whopper,whoppers,sizeable,sizable,biggies,colossal,ranked by size,biggest to smallest,weighty"},
    {Sense::smallest, "smallest,tiniest,lightest,small,tiny"},
    {Sense::oldest, "oldest,most ancient,old,ancient,outdated,earliest,stalest,vintage,from long "
                    "ago,aged,elderly,antique,dated,eldest"},
    {Sense::newest, "did i add,have i added,did i create,have i created,i created,created,recently,lately,of "
                    "late,newest,most recent,latest,youngest,recent,recently "
                    "changed,new,recently added,most "
                    "recently,changed,modified,edited,altered,came in,appeared,were added,was "
                    "added,added,arrived,last added,freshest,fresh,last modified,last changed,last "
                    "edited,just downloaded,recently downloaded,just added,brand new,newly added"},
    {Sense::grow,
     "grow,grows,growing,grew,grown,growth,increased,got bigger,gotten bigger,got larger,became "
     "bigger,increase,gained,changed in size,swelled,swollen,ballooned,become bigger,become larger,become "
     "big,gotten larger,get bigger,getting bigger,getting larger,getting big,got fatter,get larger,how much "
     "more space did,how much more did,how much bigger did,how much bigger "
     "has,expanded,expand,expanding,blew up,exploded,piled up,piling up,accumulated,gaining,gains,got "
     "big,become so big,become so large,gets bigger,gets larger,put on weight,inflated,bloated,increasing"},
    {Sense::above, "compare,compared to,compared with,versus,vs,over,above,larger than,bigger than,more "
                   "than,at least,greater than,exceeding,no smaller "
                   "than,heavier than,or more,or larger,or bigger,and up,and above,and bigger,and "
                   "larger,bigger then,larger then,more then,minimum,upwards of,>,between"},
    {Sense::below, "under,below,smaller than,less than,at most,fewer than,up to,or less,or smaller,no more "
                   "than,no larger than,no bigger than,smaller then,less then,maximum,<"},
    {Sense::inside, "in,inside,in all my,in all of my,in all the,across all my,across my,throughout "
                    "my,within,from,in the folder,in my,under the folder"},
    {Sense::unopened,
     "not opened,haven't opened,not used,haven't used,unopened,never opened,not touched,haven't "
     "touched,unused,not been opened,haven't been opened,i haven't opened,didn't open,have not opened,not "
     "accessed,havent opened,haven't i opened,not looked at,have not used,have i not opened,haven't i "
     "used,forgotten,not been used,hardly ever opened,no longer use,never open,never use,don't use,dont "
     "use,rarely use,rarely used,don't open,haven't been used,haven't been touched,no longer used,haven't "
     "looked at,haven't watched,untouched since,forgot about,i forgot,not watched,not in use,not "
     "watch,haven't listened,not listened,never watched,never played,not play,don't watch,never "
     "listened,dusty,collecting dust,gathering dust,neglected,abandoned,ignored,stale,idle,not needed "
     "since,unwatched,unread,not read,unplayed,last opened,last used,last accessed,last viewed,last watched"},
    {Sense::before, "before,older than,earlier than,prior to,more than ago,older then,till,until"},
    {Sense::since, "since the beginning of,since the start of,since beginning of,since start of,since,newer "
                   "than,younger than,newer then,starting from,beginning with"},
    {Sense::after, "after,later than"},
    {Sense::last, "last,previous,most recent clean-up,past,last time,latest clean-up"},
    {Sense::privacy,
     "you look into my,you look in my,you look at my,you look through my,you read my,you see my,you go "
     "through my,you open my,you access my,it read my,it look at my,it look into my,see my documents,see my "
     "stuff,see my data,look at my files,look at my photos,look at my data,look into "
     "my files,look in my passwords,look at my passwords,read my files,read my documents,read my emails,read "
     "my mail,read my messages,my company see,your company,at your company,stay on my computer,stays on my "
     "computer,stay on this computer,stays on this computer,need internet,need the internet,need wifi,need a "
     "connection,work offline,works offline,internet "
     "connection,upload,uploads,uploaded,uploading,internet,online,network,private,privacy,cloud,telemetry,"
     "tracking,"
     "track,send,sends,sent,sending,spy,spying,leave,leaves,server,servers,phone "
     "home,share,shares,shared,third party,third "
     "parties,account,offline,collect,collects,collecting,google,facebook,wifi,wi-fi,ai,chatgpt,secret,spies,"
     "see my files,see my photos,watching me,who can see,personal data,data "
     "protection,hackers,hacker,ads,visible to others,see it,see them,snoop,third-party,safe from "
     "hackers,data leaves,leave my computer,leaves my computer,who can read,who has access,who sees,who "
     "reads,access to my,connected,get my file,file names,see my passwords,read my passwords,my passwords "
     "safe,know my passwords,eavesdrop,anyone get"},
    {Sense::hidden, "hidden,invisible"},
    {Sense::folder, "my folders,folder,folders,directory,directories,dir,dirs,subfolder,subfolders"},
    {Sense::general,
     "run,running,loading,load,install,installing,predict,prediction,forecast,xcode,derived,simulator,"
     "simulators,build,"
     "code,backup,"
     "backups,ios,language,"
     "languages,translation,mail,attachment,same "
     "file,long,result,results,larger,smaller,older,newer,fast,cost,costs,category,categories,else,worth,"
     "actually do,same,sure,other,more,finding,findings,longer,anymore,any more,any "
     "longer,good,best,bad,wrong,work,works,week,month,year,day,time,times,located,path,location,live,lives,"
     "remains,mess,messy,chaos,cluttered,disorder,clutterd,turn off,switch "
     "off,disable,stop,enable,prevent,rank,ranking,sorted,worry "
     "about,concern,urgent,scary,version,versions,bigger,scan,scans"},
    // Of applications: their sizes are with it anyway.
    {Sense::filler, "with their data,with its data,with data,including data,including their data,including "
                    "its data,data included"},
};

constexpr SubjectRow kSubjects[] = {
    {SubjectID::virtualMachines,
     "virtual machine,virtual machines,vm,vms,vm image,vm images,virtual machine image,virtual machine "
     "images,virtual "
     "disk,virtual disks,vm disk,vm disks,virtualbox,gnome boxes,virtualbox vms,virtual box,qemu,android "
     "emulator,android emulators,emulators"},
    {SubjectID::buildOutput,
     "build artifacts,build artefacts,build artifact,build output,build "
     "outputs,build folders,build directories,build "
     "leftovers,compiled files,compile output,target folders,target dirs,target directories,build dirs,dist "
     "folders,dist dirs,build products,compiler output,leftovers of builds,leftovers of building"},
    {SubjectID::rawPhotos,
     "raw,raws,raw file,raw files,raw photo,raw photos,raw picture,raw pictures,raw image,raw images,raw "
     "shots,camera raw,camera raws,camera raw files,raw format,raw camera files"},
    {SubjectID::environments,
     "venv,venvs,virtualenv,virtualenvs,virtual environment,virtual environments,virtual envs,python "
     "environments,python venvs,python virtual environments"},
    {SubjectID::wine,
     "wine,wine prefix,wine prefixes,wineprefix,wineprefixes,bottles,wine bottles,wine bottle"},
    {SubjectID::systemAdvice, "old kernels,kernels,old kernel,apt cache,apt-cache,apt,package cache,package "
                              "downloads,pacman cache,dnf cache,journal,journald,systemd journal,system "
                              "logs"},
    {SubjectID::similarPhotos,
     "similar photos,similar pictures,similar images,similar shots,duplicate photos,duplicate "
     "pictures,duplicate images,duplicated photos,duplicated pictures,duplicate shots,near identical "
     "photos,near-identical photos,photos twice,photo duplicates,copies of photos,copies of pictures,copies "
     "of my photos,copies of my pictures,double photos,double pictures,identical photos,same photos,same "
     "photo,same picture,same pictures,pictures that look the same,photos that look the same,photos that "
     "look alike,lookalike photos,similar looking photos,near duplicates,bursts,burst photos,pictures "
     "twice,photos more than once,pictures more than once,near-duplicate photos,look the same,look "
     "alike,looks the same,similar,look similar,looking the same,alike,similar ones,look almost the "
     "same,nearly the same,resemble"},
    {SubjectID::screenshots, "screenshot,screenshots,screen shots,screen shot,screen captures,screen "
                             "grabs,screengrabs,screen capture,"
                             "screencaps"},
    {SubjectID::receipts,
     "receipt,receipts,photos of receipts,pictures of receipts,receipt photos,photographed "
     "receipts,photographed bills,pictures of bills"},
    {SubjectID::memes, "meme,memes,text images,funny pictures,joke pictures,jokes"},
    {SubjectID::blurry,
     "blurry photos,blurry pictures,blurry images,blurry shots,blurry,blurred photos,blurred pictures,out of "
     "focus photos,unsharp photos,blurred,out of focus,blurry ones,unsharp,shaky photos,bad photos,not "
     "sharp,out "
     "of focus pictures,fuzzy photos,fuzzy pictures,shaky pictures"},
    {SubjectID::duplicates,
     "duplicate,duplicates,duplicate files,duplicated files,identical files,same files,double files,copies "
     "of "
     "files,file duplicates,duplicate documents,duplicated,doubles,copies,files twice,file twice,twice,"
     "duplicate copies,redundant files,same file twice,more than once,multiple copies,dupes,redundant copies,"
     "identical,several times,a copy,copy of,copy of something,a copy of something,a duplicate of,dups,dup "
     "files"},
    {SubjectID::largeFiles, "large files,big files,huge files,large file,big file"},
    {SubjectID::oldFiles, "old files,unused files,forgotten files,old file,old stuff,old things"},
    {SubjectID::oldDownloads, "old downloads,forgotten downloads"},
    {SubjectID::logs, "crash dumps,crash dump,crash reports,crash files,core dumps,core dump,core "
                      "files,log,logs,log files,logfiles,log file,logfile"},
    {SubjectID::trash,
     "trash,bin,the bin,rubbish,recycle bin,waste basket,wastebasket,trash can,rubbish bin,trash "
     "bin,recycling bin,trashcan,dustbin,deleted files,wastepaper basket"},
    {SubjectID::deviceBackups, "backups on my phone,phone,iphone backup,iphone backups,ipad backup,ipad "
                               "backups,phone backups,phone backup,device backups,ios "
                               "backups,iphone,ipad,backup of my phone,backups of my phone"},
    {SubjectID::mailAttachments,
     "mail attachments,attachments,mail downloads,email attachments,e-mail attachments,mail attachment,email "
     "attachment"},
    {SubjectID::languagePacks, "unused languages,language packs,translations,language files,language pack"},
    {SubjectID::npm, "npm cache,npm,yarn cache,yarn,node cache,npm caches"},
    {SubjectID::pip, "pip cache,pip,python cache,python packages,pip caches"},
    {SubjectID::gradle, "gradle cache,gradle,gradle caches"},
    {SubjectID::homebrew, "homebrew,homebrew cache,homebrew downloads"},
    {SubjectID::caches,
     "cache,caches,app caches,cache files,cached files,application caches,cached data,app cache,temporary "
     "data,"
     "temporary files,temp files,cache folder,cache folders,tmp files,cache "
     "data,temp data"},
    {SubjectID::developer,
     "developer data,developer files,developer,dev files,developer tools,build files,build data,build "
     "artifacts,development files,dev stuff,build output,build leftovers"},
    {SubjectID::system, "system,system data,system files,the system,operating system,linux itself,os"},
    {SubjectID::apps,
     "app,apps,applications,programs,application,software,program,installed software,installed "
     "programs,installed apps,packages installed"},
    {SubjectID::media, "media,media files"},
    {SubjectID::downloads,
     "downloads,download folder,downloads folder,downloaded files,download,downloads "
     "directory,downloaded,stuff i "
     "downloaded,things i downloaded,files i downloaded,downloaded stuff,downlods,downloaded things"},
    {SubjectID::desktop, "desktop,desktop folder"},
    {SubjectID::documentsFolder, "documents folder,document folder,documents directory"},
    {SubjectID::picturesFolder, "pictures folder,photos folder,photo folder,picture folder,images folder"},
    {SubjectID::videosFolder, "videos folder,video folder,movies folder"},
    {SubjectID::musicFolder, "music folder"},
    {SubjectID::home, "home,home folder,home directory,user folder"},
    {SubjectID::videos,
     "video,videos,movie,movies,film,films,clip,clips,video files,recordings,footage,vids,video "
     "clips,recording,"
     "mp4s,mp4,mp4 files,mkv files,vid,screen recordings,mkvs,video recordings,home movies"},
    {SubjectID::photos,
     "photo,photos,picture,pictures,image,images,pic,pics,photographs,snapshots,shots,photograph,fotos,jpegs,"
     "jpgs,snaps of,photo files,image files,camera pictures,jpg files,jpeg,selfies"},
    {SubjectID::audio, "music,song,songs,audio,audio files,tracks,mp3s,sound files,albums,mp3,mp3 files,"
                       "music files,sounds"},
    {SubjectID::pdfs, "pdf,pdfs,pdf files,pdf documents,pdf file"},
    {SubjectID::archives,
     "archive,archives,zip,zips,zip files,compressed files,zip archives,tarballs,zip file,rar files,zipped "
     "files,zip folders,tarball,tar.gz,tar,gz,rar,7z,tar files,gzip"},
    {SubjectID::installers,
     "installer,installers,installation files,setup files,packages,install files,deb files,debs,appimages,"
     "installer files,setup file,setups"},
    {SubjectID::diskImages, "disk image,disk images,iso,isos,iso files,iso images,iso "
                            "file"},
    {SubjectID::spreadsheets,
     "spreadsheet,spreadsheets,tables,excel files,excel,excel sheets,csv files,csvs"},
    {SubjectID::presentations, "presentation,presentations,slides,powerpoints,powerpoint,powerpoint files"},
    {SubjectID::ebooks, "ebook,ebooks,e-books,books,e-book"},
    {SubjectID::documents,
     "document,documents,docs,text documents,papers,paperwork,word files,word documents,text files,letters,"
     "essays,doc"},
    {SubjectID::files,
     "file,files,item,items,stuff,thing,things,data,everything,anything,something,ones i have"},
    {SubjectID::leftovers,
     "left of apps,left of programs,left of applications,uninstall leftovers,leftovers,leftover,leftover "
     "folders,leftover stuff,leftover files,leftovers of "
     "apps,leftovers of programs,leftovers of applications,leftovers of removed apps,app "
     "leftovers,flatpak leftovers,snap leftovers,program leftovers,leftovers from apps,leftovers from "
     "programs,left over from apps,left behind,leave behind,leave stuff behind,leave anything behind,leave "
     "files behind,leaves behind,left stuff behind,left anything behind,left files behind,leftover "
     "data,remains of apps,remains of programs,remnants,residue,orphaned,orphans,uninstalled "
     "apps,uninstalled programs,removed apps,removed programs,deleted apps,deleted programs,apps i "
     "removed,programs i removed,apps i deleted,apps i uninstalled,programs i uninstalled,programs i "
     "deleted,apps i no longer have,programs i no longer have"},
    {SubjectID::startup,
     "from starting,from loading,from launching,from opening,from running,starting at login,starting "
     "with,loading at login,load at login,loads at login,starting up,starting automatically,starting by "
     "itself,start slowly,starts slowly,slow to start,boot slowly,boots slowly,takes long to start,takes "
     "ages to "
     "start,start slow,boot slow,runs at boot,run at boot,runs on boot,run on boot,starts at boot,start at "
     "boot,starts on boot,loads at "
     "startup,launches,launch,launching,loads when,load when,autorun,start on their own,starts on its "
     "own,run automatically,runs automatically,opens automatically,run in the background,runs in the "
     "background,at start,on start,boot time,startup,startup items,startup programs,startup "
     "apps,start-up,start up,autostart,login items,starts "
     "automatically,start automatically,starts by itself,start by themselves,start when i log in,starts when "
     "i log in,boot,at login,on login,when i log in,start by itself,at boot,on boot,at startup,on "
     "startup,launches automatically,launch at login,when i turn on,when i start,starts up,start at "
     "login,when i switch on,slow start,starts with,opens by itself,open by themselves,startup "
     "services,services,start when,starts when,start up when,turn the computer on,turn on,switch "
     "on,autostarts,run at startup,runs at startup,start with,launch when,open when i log in,opens when i "
     "log in"},
    {SubjectID::containers,
     "docker,podman,container,containers,docker images,container images,docker containers,"
     "docker volumes,kubernetes,distrobox,toolbox"},
    {SubjectID::flatpak, "flatpak,flatpaks,flatpak runtime stuff,flatpak runtime,flatpak stuff,flatpak "
                         "apps,flathub,flatpak runtimes"},
    {SubjectID::snap, "old snaps,old snap versions,snap revisions,old revisions,old snap "
                      "revisions,snap,snaps,snap packages,snap apps,snapd,snap store"},
    {SubjectID::games,
     "games,installed games,game,steam,steam games,video games,steam library,computer games,lutris,proton"},
};

constexpr FigureRow kFigureRows[] = {
    {Figure::number, "two,couple,a couple of,pair", 2},
    {Figure::number, "three,few", 3},
    {Figure::number, "four", 4},
    {Figure::number, "five", 5},
    {Figure::number, "six", 6},
    {Figure::number, "seven", 7},
    {Figure::number, "eight", 8},
    {Figure::number, "nine", 9},
    {Figure::number, "ten", 10},
    {Figure::number, "twelve,dozen", 12},
    {Figure::number, "fifteen", 15},
    {Figure::number, "twenty", 20},
    {Figure::number, "fifty", 50},
    {Figure::number, "hundred", 100},
    {Figure::ordinal, "first,1st", 1},
    {Figure::ordinal, "second,2nd", 2},
    {Figure::ordinal, "third,3rd", 3},
    {Figure::ordinal, "fourth,4th", 4},
    {Figure::ordinal, "fifth,5th", 5},
    {Figure::ordinal, "sixth,6th", 6},
    {Figure::timeUnit, "day,days", 0},
    {Figure::timeUnit, "week,weeks", 1},
    {Figure::timeUnit, "month,months", 2},
    {Figure::timeUnit, "year,years,yrs", 3},
    {Figure::month, "january,jan", 1},
    {Figure::month, "february,feb", 2},
    {Figure::month, "march,mar", 3},
    {Figure::month, "april,apr", 4},
    {Figure::month, "may", 5},
    {Figure::month, "june,jun", 6},
    {Figure::month, "july,jul", 7},
    {Figure::month, "august,aug", 8},
    {Figure::month, "september,sep,sept", 9},
    {Figure::month, "october,oct", 10},
    {Figure::month, "november,nov", 11},
    {Figure::month, "december,dec", 12},
    {Figure::weekday, "sunday", 0},
    {Figure::weekday, "monday", 1},
    {Figure::weekday, "tuesday", 2},
    {Figure::weekday, "wednesday", 3},
    {Figure::weekday, "thursday", 4},
    {Figure::weekday, "friday", 5},
    {Figure::weekday, "saturday", 6},
    {Figure::daysAgo, "today", 0},
    {Figure::daysAgo, "yesterday", 1},
    {Figure::number, "half a,half an,half", 0.5},
    {Figure::ago, "ago,back,old"},
    {Figure::previous, "last,past,previous"},
    {Figure::current, "this"},
    {Figure::following, "next,coming,upcoming,following"},
    {Figure::ahead, "another,in,within,for another,in about,for"},
    {Figure::daysAhead, "tomorrow", 1},
    {Figure::namedDay, "new year,new year's,new years,new year's day", valueOf(NamedDay::newYear)},
    {Figure::namedDay, "valentine's day,valentines day,valentine's", valueOf(NamedDay::valentine)},
    {Figure::namedDay, "easter,easter sunday", valueOf(NamedDay::easter)},
    {Figure::namedDay, "pentecost,whitsun", valueOf(NamedDay::pentecost)},
    {Figure::namedDay, "halloween", valueOf(NamedDay::halloween)},
    {Figure::namedDay, "christmas eve", valueOf(NamedDay::christmasEve)},
    {Figure::namedDay, "christmas,xmas,christmas day,x-mas,the holidays", valueOf(NamedDay::christmas)},
    {Figure::namedDay, "new year's eve,new years eve,nye", valueOf(NamedDay::newYearsEve)},
    {Figure::namedDay, "spring,springtime", valueOf(NamedDay::spring)},
    {Figure::namedDay, "summer,summertime", valueOf(NamedDay::summer)},
    {Figure::namedDay, "autumn", valueOf(NamedDay::autumn)},
    {Figure::namedDay, "winter,wintertime", valueOf(NamedDay::winter)},
    {Figure::endOf, "end of,the end of,end", -1},
    {Figure::endOf, "month end,month-end,month's end", 2},
    {Figure::endOf, "year end,year-end,year's end", 3},
    {Figure::ordinal, "next one,next,one after that", 0},
    {Figure::ofDate, "of,the"},
};

} // namespace english_words

const Language& english()
{
    static constexpr Language language{
        english_words::kWords,
        english_words::kSubjects,
        english_words::kFigureRows,
        {},
        false,
        "file,item,thing,folder,directory,subfolder,video,movie,film,clip,photo,picture,image,pic,song,track,"
        "pdf,document,archive,zip,download,installer,spreadsheet,presentation,book,ebook,iso,mp3"};
    return language;
}

} // namespace orlen::AskReader
